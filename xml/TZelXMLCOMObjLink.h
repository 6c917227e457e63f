#pragma once

#include "core/COwnerLink.h"
#include "core/CZelMgrRef.h"
#include "core/TZelCOMBase.h"
#include "xml/CZelXMLBasicData.h"

namespace OvZel {

/// A counted object with an XML form that links to its owner. Body and Basic are as in
/// TZelCOMObjLinkRef.
template <class I, class Body = TZelFrontier<I>, class Basic = CZelXMLBasicData>
class TZelXMLCOMObjLink : public TZelCOMBase<I, &I::sIID, Body>, public Basic {
public:
    IZelBasicData* getBasicData() override { return this; }
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }
    IZelMgrRef* getMgrRef() const override { return mOwner.getMgrRef(); }
    CZelMgrRef* getWarningTarget() const override { return CZelMgrRef::from(this->getMgrRef()); }

protected:
    /// The owner may be null.
    explicit TZelXMLCOMObjLink(IZelObjectLink* owner) : mOwner(owner) {}

private:
    COwnerLink mOwner;
};

} // namespace OvZel
