#pragma once

#include <zel/CZelUUID.h>

#include <vector>

namespace OvZel {

class IZelMgrRef;

/// The frame in which the add and get operations of the classes run.
class CZelXMLIO {
public:
    /// Raises the null-pointer failure without a reference object.
    CZelXMLIO(IZelMgrRef* mgrRef, bool getUUID);

    /// Never null.
    IZelMgrRef* getMgrRef() const { return mMgrRef; }
    /// On reading: optional identifiers in the file replace those of the objects.
    bool getUUID() const { return mGetUUID; }
    /// Scratch space of the running operation, empty at first.
    std::vector<CZelUUID>& workingList() { return mWorkingList; }

private:
    IZelMgrRef* mMgrRef;
    bool mGetUUID;
    std::vector<CZelUUID> mWorkingList;
};

} // namespace OvZel
