#include "geometry/CFlatPolygons.h"

#include "geometry/CPolygonView.h"

#include <algorithm>
#include <stdexcept>

namespace OvZel {

namespace {

constexpr std::size_t kFirstRoom = 64;
constexpr std::size_t kMostBlocks = 65'536;

} // namespace

bool CFlatPolygons::fits(const CPolygonView& polygon)
{
    const std::int32_t loops = polygon.nbLoops();
    const std::size_t count = loops > 1 ? static_cast<std::size_t>(loops) : polygon.loop(0).size();
    return count <= CPolygonRecord::kMostCount;
}

CPolygonRecord CFlatPolygons::pack(const CPolygonView& polygon)
{
    CPolygonRecord record;
    record.material = polygon.getMaterial();
    record.smooth = polygon.isSmooth() ? 1U : 0U;
    const std::int32_t loops = polygon.nbLoops();
    if (loops == 1) {
        const CLoopRecord loop = append(polygon.loop(0));
        record.place = loop.place;
        record.count = loop.count & CPolygonRecord::kMostCount;
    } else {
        record.place = mLoops.size();
        record.count = static_cast<std::uint32_t>(loops) & CPolygonRecord::kMostCount;
        record.kind = CPolygonRecord::eLoops;
        for (std::int32_t i = 0; i < loops; ++i)
            mLoops.push_back(append(polygon.loop(i)));
    }
    mSize += weight(record);
    return record;
}

void CFlatPolygons::drop(const CPolygonRecord& record)
{
    mDead += weight(record);
}

void CFlatPolygons::releaseSpareRoom()
{
    if (!mBlocks.empty())
        mBlocks.back().shrink_to_fit();
    mBlocks.shrink_to_fit();
    mLoops.shrink_to_fit();
}

CFlatPolygons::CLoopRecord CFlatPolygons::append(std::span<const CZelVertex> loop)
{
    if (loop.empty())
        return {0, 0};
    CBlock& block = blockFor(loop.size());
    const std::size_t place = (mBlocks.size() - 1) << 16 | block.size();
    block.insert(block.end(), loop.begin(), loop.end());
    return {static_cast<std::uint32_t>(place), static_cast<std::uint32_t>(loop.size())};
}

CFlatPolygons::CBlock& CFlatPolygons::blockFor(std::size_t count)
{
    const bool isFull =
        mBlocks.empty() || (!mBlocks.back().empty() && mBlocks.back().size() + count > kBlock);
    if (isFull) {
        if (mBlocks.size() == kMostBlocks)
            throw std::length_error("too many vertices");
        // Large loops can leave much of a block unused.
        if (!mBlocks.empty() && mBlocks.back().size() < kBlock / 8 * 7)
            mBlocks.back().shrink_to_fit();
        mBlocks.emplace_back();
    }
    CBlock& block = mBlocks.back();
    const std::size_t wanted = block.size() + count;
    if (wanted > block.capacity()) {
        const std::size_t doubled = std::max(kFirstRoom, block.capacity() * 2);
        block.reserve(std::max(wanted, std::min(doubled, kBlock)));
    }
    return block;
}

std::size_t CFlatPolygons::weight(const CPolygonRecord& record) const
{
    const std::int32_t loops = nbLoops(record);
    auto result = static_cast<std::size_t>(loops);
    for (std::int32_t i = 0; i < loops; ++i)
        result += loop(record, i).size();
    return result;
}

} // namespace OvZel
