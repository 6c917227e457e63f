#include "geometry/CLoopVertices.h"

#include <algorithm>
#include <new>

namespace OvZel {

std::span<const CZelVertex> CLoopVertices::records() const
{
    if (const TSimpleMgr<CZelVertex>* manager = mManager.get())
        return {manager->data(), static_cast<std::size_t>(manager->size())};
    return {mRecords.get(), static_cast<std::size_t>(mCount)};
}

bool CLoopVertices::assign(std::span<const CZelVertex> records)
{
    clear();
    const auto count = static_cast<std::int32_t>(records.size());
    if (TSimpleMgr<CZelVertex>* manager = mManager.get())
        return manager->append(records.data(), count);
    mRecords.reset(records.empty() ? nullptr : new (std::nothrow) CZelVertex[records.size()]);
    if (!mRecords)
        return records.empty();
    std::copy(records.begin(), records.end(), mRecords.get());
    mCount = count;
    return true;
}

void CLoopVertices::clear()
{
    mCount = 0;
    if (TSimpleMgr<CZelVertex>* manager = mManager.get())
        manager->removeAllObjects();
}

TSimpleMgr<CZelVertex>& CLoopVertices::makeManager() const
{
    TZelComPtr<TSimpleMgr<CZelVertex>> manager(new TSimpleMgr<CZelVertex>(mOwner, mCapacity));
    if (!manager->append(mRecords.get(), mCount))
        throw std::bad_alloc();
    mManager = std::move(manager);
    mRecords.reset();
    mCount = 0;
    return *mManager;
}

} // namespace OvZel
