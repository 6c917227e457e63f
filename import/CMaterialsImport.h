#pragma once

#include "import/copyThroughXML.h"

#include <zel/IZelMgr.h>

#include <map>
#include <string>

namespace OvZel {

/// Imports materials. They are only ever overwritten, never added.
class CMaterialsImport {
public:
    /// Both documents must outlive the import.
    CMaterialsImport(IZelMgr& destination, IZelMgr& source);

    /// The overrides that component instances hold. Nothing happens when the source has no
    /// components, or only such as the import doesn't look at.
    void importOfInstances();
    void importOfDefinitions();
    void importOfGround();

private:
    using CProperties = TZelObjectMgr<IZelProperty>;
    using CKeys = std::map<std::string, IZelProperty*>;
    using CListOf = CProperties& (*)(IZelObjectInstance&);

    void importLists(CListOf listOf, bool areNamesBare);
    CKeys instanceKeys(CListOf listOf, bool areNamesBare);

    IZelMgr& mDestination;
    IZelMgr& mSource;
};

} // namespace OvZel
