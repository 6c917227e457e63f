#pragma once

#include "core/TSharedPtr.h"
#include "core/TZelComPtr.h"
#include "core/TZelFrontier.h"

#include <zel/IZelObjectLink.h>
#include <zel/IZelObjectLinkRef.h>
#include <zel/IZelPolygon.h>

#include <memory>

namespace OvZel {

/// What TZelFrontierObjLinkRef is to other parts, for one of which there are a million: the control
/// block is made when somebody asks for it.
class CPolygonBase : public TZelFrontier<IZelPolygon>, public IZelObjectLink {
public:
    virtual ~CPolygonBase();
    CPolygonBase(const CPolygonBase&) = delete;
    CPolygonBase& operator=(const CPolygonBase&) = delete;

    IZelObjectLink* getObjectLink() { return this; }
    IZelMgrRef* getMgrRef() const override { return mOwner ? mOwner->getMgrRef() : nullptr; }
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }
    IZelSharedPtrBase* getCOMWeakPtr() const override { return nullBlock(); }
    IZelSharedPtrBase* getSelfWeakPtr() const override;

    /// The caller owns the polygon, on the heap, until it lets go. Whoever has taken a count of
    /// the control block keeps it longer.
    void hold();
    void letGo();

protected:
    /// The owner may be null.
    explicit CPolygonBase(IZelObjectLinkRef* owner) : mOwner(owner) {}

    /// For the beginning of the destructor: no weak pointer sees a dead object.
    void resetBlock();

private:
    mutable TSharedPtr<CPolygonBase>* mBlock = nullptr;
    TZelComPtr<IZelObjectLinkRef> mOwner;
    bool mIsHeld = false;
};

struct CLetGo {
    void operator()(CPolygonBase* polygon) const { polygon->letGo(); }
};

} // namespace OvZel
