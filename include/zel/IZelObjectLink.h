#pragma once

namespace OvZel {

class IZelMgrRef;
class IZelSharedPtrBase;

/// How an object finds its owner and its document.
class IZelObjectLink {
public:
    /// The reference object of the document that the object belongs to; null without an owner or
    /// once the owner is gone. Carries no reference for the caller.
    virtual IZelMgrRef* getMgrRef() const = 0;
    /// The link of the owner; null at the top, without an owner, or once the owner is gone.
    virtual IZelObjectLink* getOwnerLink() const = 0;
    /// The control block through which the object can be held as a counted object. Objects without
    /// a count of their own give a block whose object is always null. No count for the caller.
    virtual IZelSharedPtrBase* getCOMWeakPtr() const = 0;
    /// The object's own control block, without a count for the caller.
    virtual IZelSharedPtrBase* getSelfWeakPtr() const = 0;

protected:
    ~IZelObjectLink() = default;
};

} // namespace OvZel
