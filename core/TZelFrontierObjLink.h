#pragma once

#include "core/COwnerLink.h"
#include "core/TZelBase.h"

namespace OvZel {

/// A part that links to its owner without keeping it.
template <class I>
class TZelFrontierObjLink : public TZelBase<I> {
public:
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }

protected:
    /// The owner may be null.
    explicit TZelFrontierObjLink(IZelObjectLink* owner) : mOwner(owner) {}

private:
    COwnerLink mOwner;
};

} // namespace OvZel
