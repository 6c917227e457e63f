#pragma once

namespace OvZel {

/// The control block of an object: its counts, apart from the object itself.
///
/// A strong count keeps the object, a weak count only the block. All operations may come from any
/// thread. Clients meet blocks through IZelObjectLink, always without a count for the caller.
class IZelSharedPtrBase {
public:
    /// One more strong count.
    virtual void addRef() = 0;
    /// At the last strong count the object is destroyed on the calling thread.
    virtual void release() = 0;
    /// One more weak count.
    virtual void addWeakRef() = 0;
    /// At the last count of both kinds the block goes.
    virtual void releaseWeakRef() = 0;
    /// Gives a strong count back and never destroys the object.
    virtual void detachRef() = 0;
    /// Forgets the object, which is about to die or is owned elsewhere.
    virtual void resetPtr() = 0;

protected:
    ~IZelSharedPtrBase() = default;
};

} // namespace OvZel
