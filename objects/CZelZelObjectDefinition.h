#pragma once

#include "core/TObject2Mgr.h"
#include "core/TSimpleMgr.h"
#include "core/TZelCOMObjLinkRef.h"
#include "geometry/CPolygon.h"
#include "objects/CDefinitionName.h"

#include <zel/CZelPoint.h>

namespace OvZel {

/// A definition with its mesh.
class CZelZelObjectDefinition
    : public TZelCOMObjLinkRef<IZelZelObjectDefinition, CDefinitionName, CDefinitionBasicData> {
public:
    using CPoints = TSimpleMgr<CZelPoint>;
    using CPolygons = TObject2Mgr<CPolygon, IZelPolygon>;

    explicit CZelZelObjectDefinition(IZelObjectLinkRef* owner);

    const TZelObjectMgr<CZelPoint>* getPoints() const override { return mPoints.get(); }
    CPoints* getPoints() override { return mPoints.get(); }
    const TZelObjectMgr<IZelPolygon>* getPolygons() const override { return mPolygons.get(); }
    CPolygons* getPolygons() override { return mPolygons.get(); }
    std::int32_t getGeometryLevel() const override { return mGeometryLevel; }
    void setGeometryLevel(std::int32_t level) override { mGeometryLevel = level; }

    IZelString& definitionName() const override { return *mNameLink; }

private:
    IZelString* mNameLink;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<CPolygons> mPolygons;
    std::int32_t mGeometryLevel = 0;
};

} // namespace OvZel
