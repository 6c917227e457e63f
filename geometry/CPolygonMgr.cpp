#include "geometry/CPolygonMgr.h"

#include "core/largePages.h"
#include "geometry/CPolygon.h"
#include "geometry/CPolygonView.h"

#include <new>

namespace OvZel {

namespace {

constexpr const char* kNoMemory = "newZelObject: Can't allocate object";

CPolygonRecord objectRecord(CPolygon* object)
{
    CPolygonRecord record;
    record.object = object;
    record.kind = CPolygonRecord::eObject;
    return record;
}

} // namespace

CPolygonMgr::TObject2Mgr(IZelObjectLink* owner) : TObjectMgrBase(owner) {}

CPolygonMgr::~TObject2Mgr()
{
    TObject2Mgr::removeAllObjects();
}

void CPolygonMgr::removeObject(std::int32_t index)
{
    if (index == -1)
        index = size() - 1;
    if (!isBelow(index, mRecords.size()))
        return warning("removeObject: Bad index value");
    const CPolygonRecord record = recordAt(index);
    mRecords.erase(mRecords.begin() + index);
    if (record.kind == CPolygonRecord::eObject) {
        // The object dies behind the change: its destructor may run client code that looks here.
        record.object->letGo();
        return;
    }
    mFlat.drop(record);
    packAnew();
}

void CPolygonMgr::moveObject(std::int32_t from, std::int32_t to)
{
    if (from == to)
        return;
    if (!isBelow(from, mRecords.size()) || !isBelow(to, mRecords.size()))
        return warning("moveObject: Bad index value");
    const auto first = mRecords.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
}

void CPolygonMgr::removeAllObjects()
{
    const CRecords records = std::exchange(mRecords, {});
    mFlat = {};
    for (const CPolygonRecord& record : records) {
        if (record.kind == CPolygonRecord::eObject)
            record.object->letGo();
    }
}

bool CPolygonMgr::reserve(std::int32_t count)
{
    if (count < 0)
        return false;
    try {
        mRecords.reserve(static_cast<std::size_t>(count));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

IZelPolygon* CPolygonMgr::getZelObject(std::int32_t index)
{
    if (!isBelow(index, mRecords.size())) {
        warning("getZelObject: Bad index value");
        return nullptr;
    }
    try {
        return at(index);
    } catch (const std::exception&) {
        warning(kNoMemory);
        return nullptr;
    }
}

IZelPolygon* CPolygonMgr::newZelObject(std::int32_t index)
{
    return insert(index);
}

bool CPolygonMgr::appendFlat(const CPolygonView& polygon)
{
    try {
        if (!CFlatPolygons::fits(polygon)) {
            CPolygon* object = append();
            return object != nullptr && object->copyFrom(polygon);
        }
        mRecords.push_back(mFlat.pack(polygon));
        return true;
    } catch (const std::exception&) {
        warning(kNoMemory);
        return false;
    }
}

bool CPolygonMgr::appendFlat(std::int32_t material, bool isSmooth, std::span<const CZelVertex> loop)
{
    try {
        mRecords.push_back(mFlat.pack(material, isSmooth, loop));
        return true;
    } catch (const std::exception&) {
        warning(kNoMemory);
        return false;
    }
}

/// Of a large list nobody has touched the spare room, which takes no memory then where memory is
/// given out when it is touched, and a smaller copy would take the list once more for a while.
void CPolygonMgr::releaseSpareRoom() noexcept
{
    if (mRecords.capacity() * sizeof(CPolygonRecord) < kLargeArea)
        mRecords.shrink_to_fit();
    mFlat.releaseSpareRoom();
}

CPolygon* CPolygonMgr::at(std::int32_t index)
{
    const CPolygonRecord& record = recordAt(index);
    if (record.kind == CPolygonRecord::eObject)
        return record.object;
    return makeObject(index);
}

CPolygonMgr::CHeldPolygon CPolygonMgr::make()
{
    auto polygon = std::make_unique<CPolygon>(getBase());
    polygon->hold();
    return CHeldPolygon(polygon.release());
}

CPolygon* CPolygonMgr::insert(std::int32_t index)
{
    if (index == -1)
        index = size();
    if (!isBelow(index, mRecords.size() + 1)) {
        warning("newZelObject: Bad index value");
        return nullptr;
    }
    try {
        CHeldPolygon polygon = make();
        mRecords.insert(mRecords.begin() + index, objectRecord(polygon.get()));
        return polygon.release();
    } catch (...) {
        warning(kNoMemory);
        return nullptr;
    }
}

/// The object takes everything over; of the record only the place in the list stays.
CPolygon* CPolygonMgr::makeObject(std::int32_t index)
{
    CHeldPolygon polygon = make();
    if (!polygon->copyFrom(CPolygonView(*this, index)))
        throw std::bad_alloc();
    CPolygonRecord& record = mRecords[static_cast<std::size_t>(index)];
    mFlat.drop(record);
    record = objectRecord(polygon.get());
    packAnew();
    return polygon.release();
}

/// Leaves everything as it is until more than half of it is dead, and when memory runs out.
void CPolygonMgr::packAnew() noexcept
{
    if (!mFlat.isHalfDead())
        return;
    try {
        CFlatPolygons flat;
        CRecords records(mRecords);
        for (std::int32_t i = 0; i < size(); ++i) {
            if (recordAt(i).kind != CPolygonRecord::eObject)
                records[static_cast<std::size_t>(i)] = flat.pack(CPolygonView(*this, i));
        }
        flat.releaseSpareRoom();
        mFlat = std::move(flat);
        // In place, so that room that was reserved stays.
        std::copy(records.begin(), records.end(), mRecords.begin());
    } catch (const std::exception&) {
        return;
    }
}

} // namespace OvZel
