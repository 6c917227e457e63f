#pragma once

#include "core/TZelFrontierObjLinkRef.h"
#include "geometry/CLoopVertices.h"

#include <zel/IZelPolygon.h>

namespace OvZel {

/// A hole of a polygon.
class CLoop : public TZelFrontierObjLinkRef<IZelPolygon::IZelHole> {
public:
    explicit CLoop(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}
    ~CLoop() override { getBlock()->resetPtr(); }

    const TZelObjectMgr<CZelVertex>* getVertices() const override { return &mVertices.manager(); }
    TZelObjectMgr<CZelVertex>* getVertices() override { return &mVertices.manager(); }

    CLoopVertices& vertices() { return mVertices; }
    const CLoopVertices& vertices() const { return mVertices; }

private:
    CLoopVertices mVertices{this, 0};
};

} // namespace OvZel
