#pragma once

#include "core/CZelMgrRef.h"
#include "core/TObject2Mgr.h"
#include "core/TSimpleMgr.h"
#include "geometry/CPolygon.h"

#include <zel/IZelExtStorageReader.h>

namespace OvZel {

/// Stores a mesh that is being read in the managers of a document or a definition. Records are
/// appended in the order in which they come.
class CZELGeoReader final : public IZelExtStorageReader::IReader {
public:
    using CPoints = TSimpleMgr<CZelPoint>;
    using CPolygons = TObject2Mgr<CPolygon, IZelPolygon>;

    /// Keeps all three.
    CZELGeoReader(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons);
    CZELGeoReader(const CZELGeoReader&) = delete;
    CZELGeoReader& operator=(const CZELGeoReader&) = delete;
    /// Gives back the room for records that were claimed and did not come.
    ~CZELGeoReader() override;

    /// A block carries a whole mesh, so the records from before go.
    void setNbPoints(std::int32_t count) override;
    bool setPoint(const CZelPoint* point, std::int32_t index) override;
    void setNbPolygons(std::int32_t count) override;
    bool setPolygon(IZelPolygon* polygon, std::int32_t index) override;

    bool append(const CZelPoint& point)
    {
        CZelPoint* record = mPoints.get()->append();
        if (record == nullptr)
            return refuse("CZELGeoReader::setPoint - Can't allocate point");
        *record = point;
        return true;
    }
    bool append(const CPolygon& polygon);
    bool append(std::int32_t material, bool isSmooth, std::span<const CZelVertex> loop);

private:
    bool refuse(const char* text) const;

    std::int32_t mPointsRoom = 0;
    bool mHasPolygons = false;
    TZelComPtr<IZelMgrRef> mMgrRef;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<CPolygons> mPolygons;
};

} // namespace OvZel
