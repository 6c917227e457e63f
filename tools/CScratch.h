#pragma once

#include "tools/CListedObject.h"

namespace tool {

/// An element of a document that no save keeps, for objects to write themselves into.
class CScratch {
public:
    explicit CScratch(OvZel::IZelMgr& document);
    ~CScratch();
    CScratch(const CScratch&) = delete;
    CScratch& operator=(const CScratch&) = delete;

    /// The object's element, good until the next one. Throws CToolError(eNotReadable) when the
    /// object can't be written.
    OrvaneXML::XIXMLElement& write(const CObjectList& list, const CListedObject& object);

private:
    void clear();

    OrvaneXML::XIXMLElement* mElement;
};

} // namespace tool
