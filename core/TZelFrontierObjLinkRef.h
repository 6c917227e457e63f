#pragma once

#include "core/TZelBase.h"
#include "core/TZelComPtr.h"

namespace OvZel {

/// A part that keeps the small counted owner object of its manager.
template <class I>
class TZelFrontierObjLinkRef : public TZelBase<I> {
public:
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }

protected:
    /// The owner may be null.
    explicit TZelFrontierObjLinkRef(IZelObjectLinkRef* owner) : mOwner(owner) {}

private:
    TZelComPtr<IZelObjectLinkRef> mOwner;
};

} // namespace OvZel
