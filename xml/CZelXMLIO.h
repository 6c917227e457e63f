#pragma once

#include <zel/CZelUUID.h>
#include <zel/CZelVersion.h>

#include <map>
#include <memory>
#include <vector>

namespace OrvaneXML {

class XCXMLTree;

}

namespace OvZel {

class IZelMgrRef;

/// The frame in which the add and get operations of the classes run.
class CZelXMLIO {
public:
    using CIdentities = std::map<CZelUUID, CZelUUID>;

    /// Raises the null-pointer failure without a reference object.
    CZelXMLIO(IZelMgrRef* mgrRef, bool getUUID);
    ~CZelXMLIO();
    CZelXMLIO(const CZelXMLIO&) = delete;
    CZelXMLIO& operator=(const CZelXMLIO&) = delete;

    /// Never null.
    IZelMgrRef* getMgrRef() const { return mMgrRef; }
    /// On reading: optional identifiers in the file replace those of the objects.
    bool getUUID() const { return mGetUUID; }
    /// Whether what is being read was written by a library older than this; false outside a load,
    /// where the element comes from a library as new as this one.
    bool isOlderThan(const CZelVersion& version) const
    {
        return mFileVersion != nullptr && *mFileVersion < version;
    }
    void setFileVersion(const CZelVersion* version) { mFileVersion = version; }
    /// Scratch space of the running operation, empty at first.
    std::vector<CZelUUID>& workingList() { return mWorkingList; }
    /// A tree for what is put together aside, so that it needs none of its own: null at first, and
    /// whoever puts something in takes it out again, or keeps the tree.
    std::unique_ptr<OrvaneXML::XCXMLTree>& workingTree() { return mWorkingTree; }
    /// Identifiers of the part of the file that is being read, and what they became in memory. Null
    /// when identifiers are taken as they stand. The table belongs to the caller.
    CIdentities* identities() const { return mIdentities; }
    void setIdentities(CIdentities* identities) { mIdentities = identities; }

private:
    IZelMgrRef* mMgrRef;
    bool mGetUUID;
    const CZelVersion* mFileVersion = nullptr;
    std::vector<CZelUUID> mWorkingList;
    std::unique_ptr<OrvaneXML::XCXMLTree> mWorkingTree;
    CIdentities* mIdentities = nullptr;
};

} // namespace OvZel
