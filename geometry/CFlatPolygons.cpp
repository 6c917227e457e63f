#include "geometry/CFlatPolygons.h"

#include "geometry/CPolygonView.h"

#include <algorithm>
#include <new>
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
    const std::int32_t loops = polygon.nbLoops();
    if (loops == 1)
        return pack(polygon.getMaterial(), polygon.isSmooth(), polygon.loop(0));
    CPolygonRecord record;
    record.material = polygon.getMaterial();
    record.smooth = polygon.isSmooth() ? 1U : 0U;
    record.place = mLoops.size();
    record.count = static_cast<std::uint32_t>(loops) & CPolygonRecord::kMostCount;
    record.kind = CPolygonRecord::eLoops;
    for (std::int32_t i = 0; i < loops; ++i)
        mLoops.push_back(append(polygon.loop(i)));
    mSize += weight(record);
    return record;
}

CPolygonRecord CFlatPolygons::pack(std::int32_t material, bool isSmooth,
                                   std::span<const CZelVertex> loop)
{
    const CLoopRecord packed = append(loop);
    CPolygonRecord record;
    record.material = material;
    record.smooth = isSmooth ? 1U : 0U;
    record.place = packed.place;
    record.count = packed.count & CPolygonRecord::kMostCount;
    mSize += 1 + loop.size();
    return record;
}

void CFlatPolygons::drop(const CPolygonRecord& record)
{
    mDead += weight(record);
}

/// Of a piece of several blocks nobody has touched what is not used, so it costs next to nothing.
void CFlatPolygons::releaseSpareRoom() noexcept
{
    const bool isAlone =
        !mBlocks.empty() && mBlocks.back() == mPieces.back().data() && mBlocksLeft == 0;
    try {
        if (isAlone && mUsed < mRoom)
            resizeLast(mUsed);
    } catch (const std::bad_alloc&) {
        // The spare room stays.
    }
    mPieces.shrink_to_fit();
    mBlocks.shrink_to_fit();
    mLoops.shrink_to_fit();
}

CFlatPolygons::CLoopRecord CFlatPolygons::append(std::span<const CZelVertex> loop)
{
    if (loop.empty())
        return {0, 0};
    makeRoom(loop.size());
    const std::size_t place = (mBlocks.size() - 1) << 16 | mUsed;
    std::copy(loop.begin(), loop.end(), mBlocks.back() + mUsed);
    mUsed += loop.size();
    return {static_cast<std::uint32_t>(place), static_cast<std::uint32_t>(loop.size())};
}

void CFlatPolygons::makeMoreRoom(std::size_t count)
{
    if (mBlocks.size() <= 1 && mUsed + count <= kBlock)
        return resizeLast(std::clamp(mRoom * 2, std::max(kFirstRoom, mUsed + count), kBlock));
    if (count > kBlock)
        return addBlock(newPiece(count), count);
    if (mBlocksLeft == 0) {
        const std::size_t blocks = mBlocks.size() < kBlocksInPiece ? 1 : kBlocksInPiece;
        mNextBlock = newPiece(blocks * kBlock);
        mBlocksLeft = blocks;
    }
    addBlock(mNextBlock, kBlock);
    mNextBlock += kBlock;
    --mBlocksLeft;
}

void CFlatPolygons::resizeLast(std::size_t room)
{
    if (mBlocks.empty())
        return addBlock(newPiece(room), room);
    TLargeArray<CZelVertex> piece(room);
    std::copy_n(mBlocks.back(), mUsed, piece.data());
    mBlocks.back() = piece.data();
    mPieces.back() = std::move(piece);
    mRoom = room;
}

CZelVertex* CFlatPolygons::newPiece(std::size_t room)
{
    return mPieces.emplace_back(room).data();
}

void CFlatPolygons::addBlock(CZelVertex* start, std::size_t room)
{
    if (mBlocks.size() == kMostBlocks)
        throw std::length_error("too many vertices");
    mBlocks.push_back(start);
    mUsed = 0;
    mRoom = room;
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
