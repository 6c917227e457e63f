#pragma once

#include "tools/CElementDiff.h"

#include <cstdint>
#include <string>
#include <vector>

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// One thing that is not the same in two documents.
struct CDifference {
    enum class EKind { eAdded, eRemoved, eMoved, eChanged };

    EKind kind = EKind::eChanged;
    std::string list;
    std::string id; ///< of the object, as all that follows; in a if it is there
    std::string name;
    std::size_t index = 0;
    CFieldDifference field; ///< path and values are empty where the object as a whole is meant
};

/// Everything that differs, list by list. Objects are paired by identifier, else by name, those
/// without a name in their order. The documents stay as they are; the element of one tag for
/// client data is used and left empty. Throws CToolError(eNotReadable) for an object that can't
/// be written.
std::vector<CDifference> diffDocuments(OvZel::IZelMgr& a, OvZel::IZelMgr& b, double tolerance);

} // namespace tool
