#pragma once

#include "geometry/TLargeArray.h"

#include <zel/CZelVertex.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace OvZel {

class CPolygon;
class CPolygonView;

/// One polygon in a list. What its place means depends on the kind: the first vertex of the only
/// loop or the first of several loops. An object has taken everything over.
struct CPolygonRecord {
    enum eKind : std::uint32_t { eOneLoop, eLoops, eObject };
    static constexpr std::uint32_t kMostCount = (1U << 28) - 1;

    union {
        std::uint64_t place = 0;
        CPolygon* object;
    };
    std::int32_t material = 0;
    /// Vertices of the only loop, or loops.
    std::uint32_t count : 28 = 0;
    std::uint32_t smooth : 1 = 0;
    std::uint32_t kind : 2 = eOneLoop;
};
static_assert(sizeof(CPolygonRecord) == 16, "a mesh has a million of these");

/// The loops of polygons that nobody has looked at, packed.
///
/// Vertices lie in blocks that a loop never leaves; a larger one has a block of its own. A place is
/// the number of the block in the upper half and the vertex within the block in the lower. Memory
/// comes in pieces: the first is of one block and grows up to it, and once there are many, a piece
/// has several. Vertices of a removed polygon stay until the whole is packed anew.
class CFlatPolygons {
public:
    static constexpr std::size_t kBlock = 65'536;
    static constexpr std::size_t kBlocksInPiece = 16;

    /// False for a polygon whose counts a record cannot hold.
    static bool fits(const CPolygonView& polygon);
    /// Adds the loops; raises when memory runs out.
    CPolygonRecord pack(const CPolygonView& polygon);
    /// The same for a polygon without holes.
    CPolygonRecord pack(std::int32_t material, bool isSmooth, std::span<const CZelVertex> loop);
    /// The polygon of this record, which holds no object, goes.
    void drop(const CPolygonRecord& record);
    /// More than half of what lies here belongs to no polygon.
    bool isHalfDead() const { return mDead > mSize / 2; }
    void releaseSpareRoom() noexcept;

    std::int32_t nbLoops(const CPolygonRecord& record) const
    {
        return record.kind == CPolygonRecord::eLoops ? static_cast<std::int32_t>(record.count) : 1;
    }
    /// The index is good; good until something is packed.
    std::span<const CZelVertex> loop(const CPolygonRecord& record, std::int32_t index) const
    {
        if (record.kind != CPolygonRecord::eLoops)
            return vertices({static_cast<std::uint32_t>(record.place), record.count});
        return vertices(mLoops[record.place + static_cast<std::uint32_t>(index)]);
    }

private:
    struct CLoopRecord {
        std::uint32_t place;
        std::uint32_t count;
    };
    std::span<const CZelVertex> vertices(CLoopRecord loop) const
    {
        if (loop.count == 0)
            return {};
        return {mBlocks[loop.place >> 16] + (loop.place & 0xFFFFU), loop.count};
    }
    CLoopRecord append(std::span<const CZelVertex> loop);
    /// For so many vertices in the last block.
    void makeRoom(std::size_t count)
    {
        if (mRoom - mUsed < count)
            makeMoreRoom(count);
    }
    void makeMoreRoom(std::size_t count);
    /// Of the last block, which has a piece of its own.
    void resizeLast(std::size_t room);
    CZelVertex* newPiece(std::size_t room);
    void addBlock(CZelVertex* start, std::size_t room);
    /// What a polygon takes up here, in vertices and loops.
    std::size_t weight(const CPolygonRecord& record) const;

    std::vector<TLargeArray<CZelVertex>> mPieces;
    std::vector<CZelVertex*> mBlocks;
    // Of the last block.
    std::size_t mUsed = 0;
    std::size_t mRoom = 0;
    // Of the last piece.
    CZelVertex* mNextBlock = nullptr;
    std::size_t mBlocksLeft = 0;
    std::vector<CLoopRecord> mLoops;
    std::size_t mSize = 0;
    std::size_t mDead = 0;
};

} // namespace OvZel
