#pragma once

#include "core/CZelMgrRef.h"
#include "core/TObject2Mgr.h"
#include "core/TSimpleMgr.h"
#include "geometry/CPolygon.h"
#include "geometry/CPolygonView.h"

#include <zel/IZelExtStorageWriter.h>

#include <optional>

namespace OvZel {

/// Supplies the mesh in the managers of a document or a definition for a save.
class CZELGeoWriter final : public IZelExtStorageWriter::IWriter {
public:
    using CPoints = TSimpleMgr<CZelPoint>;
    using CPolygons = TObject2Mgr<CPolygon, IZelPolygon>;

    /// Keeps all three.
    CZELGeoWriter(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons);

    std::int32_t getNbPoints() override { return mPoints.get()->size(); }
    bool getPoint(CZelPoint* point, std::int32_t index) override;
    std::int32_t getNbPolygons() override { return mPolygons.get()->size(); }
    bool getPolygon(IZelPolygon* polygon, std::int32_t index) override;

    /// The record itself, good until the manager changes; null for an index that is too large.
    const CZelPoint* pointAt(std::int32_t index) const
    {
        return index < mPoints.get()->size() ? mPoints.get()->data() + index : nullptr;
    }
    /// Makes no object; nothing for an index that is too large.
    std::optional<CPolygonView> polygonAt(std::int32_t index) const
    {
        if (index >= mPolygons.get()->size())
            return std::nullopt;
        return CPolygonView(*mPolygons.get(), index);
    }

private:
    bool refuse(const char* text) const;

    TZelComPtr<IZelMgrRef> mMgrRef;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<CPolygons> mPolygons;
};

} // namespace OvZel
