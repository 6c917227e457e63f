#pragma once

#include "core/TObject2Mgr.h"
#include "geometry/CFlatPolygons.h"
#include "geometry/CPolygonBase.h"

#include <zel/IZelPolygon.h>

namespace OvZel {

class CPolygon;

/// The polygons of a mesh.
///
/// A mesh has a million polygons, and few of them are ever looked at one by one. The list holds
/// records; an object is made when somebody asks for it, takes the loops of its record over and
/// stays the polygon from then on.
template <>
class TObject2Mgr<CPolygon, IZelPolygon> : public TObjectMgrBase<IZelPolygon> {
public:
    using CHeldPolygon = std::unique_ptr<CPolygon, CLetGo>;

    explicit TObject2Mgr(IZelObjectLink* owner);
    ~TObject2Mgr() override;

    const CZelUUID* getObjectIID() const override { return elementId<IZelPolygon>(); }
    std::int32_t getNbObjects() const override { return size(); }
    void removeObject(std::int32_t index) override;
    void moveObject(std::int32_t from, std::int32_t to) override;
    /// Objects go from the first to the last; the list is empty before the first of them goes.
    void removeAllObjects() override;
    bool reserve(std::int32_t count) override;
    IZelPolygon* getZelObject(std::int32_t index) override;
    IZelPolygon* newZelObject(std::int32_t index) override;

    /// Puts a copy behind the last polygon and makes no object; false after a warning.
    virtual bool appendFlat(const CPolygonView& polygon);
    /// The same for a polygon without holes.
    virtual bool appendFlat(std::int32_t material, bool isSmooth, std::span<const CZelVertex> loop);
    /// Keeps the memory when making the smaller lists fails.
    void releaseSpareRoom() noexcept;

    std::int32_t size() const { return static_cast<std::int32_t>(mRecords.size()); }
    /// Without a check; the index is good. Raises when there is no memory for the object.
    CPolygon* at(std::int32_t index);
    /// A new polygon behind the last; null after a warning.
    CPolygon* append() { return insert(-1); }

    /// For views; the index is good.
    const CPolygonRecord& recordAt(std::int32_t index) const
    {
        return mRecords[static_cast<std::size_t>(index)];
    }
    /// Null when there is no object.
    const CPolygon* objectAt(std::int32_t index) const
    {
        const CPolygonRecord& record = recordAt(index);
        return record.kind == CPolygonRecord::eObject ? record.object : nullptr;
    }
    const CFlatPolygons& flat() const { return mFlat; }

protected:
    /// A new polygon with its owner.
    virtual CHeldPolygon make();

private:
    CPolygon* insert(std::int32_t index);
    CPolygon* makeObject(std::int32_t index);
    void packAnew() noexcept;

    using CRecords = std::vector<CPolygonRecord, TLargeAllocator<CPolygonRecord>>;

    CRecords mRecords;
    CFlatPolygons mFlat;
};

using CPolygonMgr = TObject2Mgr<CPolygon, IZelPolygon>;

} // namespace OvZel
