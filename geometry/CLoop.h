#pragma once

#include "core/TZelFrontierObjLinkRef.h"
#include "geometry/CLoopVertices.h"

#include <zel/IZelPolygon.h>

namespace OvZel {

/// A hole of a polygon.
class CLoop : public TZelFrontierObjLinkRef<IZelPolygon::IZelHole> {
public:
    explicit CLoop(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}
    ~CLoop() override
    {
        vertices().loseOwner();
        getBlock()->resetPtr();
    }

    const TZelObjectMgr<CZelVertex>* getVertices() const override { return &vertices().manager(); }
    TZelObjectMgr<CZelVertex>* getVertices() override { return &vertices().manager(); }

    CLoopVertices vertices() const { return {mVertices, this, 0}; }

private:
    mutable CLoopVertices::CSlot mVertices;
};

} // namespace OvZel
