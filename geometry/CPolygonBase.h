#pragma once

#include "core/TObject2Mgr.h"
#include "core/TSharedPtr.h"
#include "core/TZelComPtr.h"
#include "core/TZelFrontier.h"
#include "geometry/CLoop.h"
#include "geometry/CLoopVertices.h"

#include <zel/IZelObjectLink.h>
#include <zel/IZelObjectLinkRef.h>
#include <zel/IZelPolygon.h>

#include <memory>

namespace OvZel {

/// What TZelFrontierObjLinkRef is to other parts, for one of which there are a million: the control
/// block is made when somebody asks for it, and what few polygons have stands apart.
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
    using CHoles = TObject2Mgr<CLoop, IZelPolygon::IZelHole>;

    /// The owner may be null.
    explicit CPolygonBase(IZelObjectLinkRef* owner) : mOwner(owner), mVertices() {}

    CLoopVertices::CSlot& verticesSlot() const { return mHasMore ? mMore->vertices : mVertices; }
    /// Null when there have been none.
    CHoles* holesIfAny() const { return mHasMore ? mMore->holes.get() : nullptr; }
    TZelComPtr<CHoles>& holesSlot() { return more().holes; }

    /// For the beginning of the destructor: no weak pointer sees a dead object, and none sees the
    /// loops go.
    void end();

private:
    struct CMore {
        CLoopVertices::CSlot vertices;
        TZelComPtr<CHoles> holes;
        TSharedPtr<CPolygonBase>* block = nullptr;
    };

    TSharedPtr<CPolygonBase>* block() const { return mHasMore ? mMore->block : nullptr; }
    CMore& more() const;

    TZelComPtr<IZelObjectLinkRef> mOwner;
    // The vertices move into the rest when that is made, which nobody can see.
    union {
        mutable CLoopVertices::CSlot mVertices;
        mutable CMore* mMore;
    };
    mutable bool mHasMore = false;
    bool mIsHeld = false;
};

struct CLetGo {
    void operator()(CPolygonBase* polygon) const { polygon->letGo(); }
};

} // namespace OvZel
