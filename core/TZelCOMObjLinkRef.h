#pragma once

#include "core/CZelBasicData.h"
#include "core/CZelMgrRef.h"
#include "core/TZelCOMBase.h"
#include "core/TZelComPtr.h"

namespace OvZel {

/// A counted object with basic data that keeps the small counted owner object of its manager.
///
/// Body and Basic are for classes whose interface and basic data have an operation of one name with
/// different results: the two are then overridden in a class on one base alone.
template <class I, class Body = TZelFrontier<I>, class Basic = CZelBasicData>
class TZelCOMObjLinkRef : public TZelCOMBase<I, &I::sIID, Body>, public Basic {
public:
    IZelBasicData* getBasicData() override { return this; }
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }
    IZelMgrRef* getMgrRef() const override
    {
        IZelObjectLink* owner = this->getOwnerLink();
        return owner != nullptr ? owner->getMgrRef() : nullptr;
    }
    CZelMgrRef* getWarningTarget() const override { return CZelMgrRef::from(this->getMgrRef()); }

protected:
    /// The owner may be null.
    explicit TZelCOMObjLinkRef(IZelObjectLinkRef* owner) : mOwner(owner) {}

private:
    TZelComPtr<IZelObjectLinkRef> mOwner;
};

} // namespace OvZel
