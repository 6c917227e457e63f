#pragma once

#include "xml/tree/lanes.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace OrvaneXML {

/// The memory of one tree: blocks cut into pieces, with free lists by size.
///
/// Blocks are small at first, so that a small tree stays small, and grow to 16 MiB, so that a large
/// one asks the system rarely. Pieces that do not fit well into a block come from the heap on their
/// own and go back there. Nodes are cut from the front of a block and are aligned to 8; texts come
/// from its back, where they lie as close as an alignment to 2 lets them.
///
/// Behind each piece some bytes more can be read, so that a text may be read in wide steps.
///
///     SBlock | nodes .. mNext | free | mEnd .. texts | kWidestStep
class CXMLNodePool {
public:
    CXMLNodePool() = default;
    ~CXMLNodePool();
    CXMLNodePool(const CXMLNodePool&) = delete;
    CXMLNodePool& operator=(const CXMLNodePool&) = delete;

    void* Allocate(std::size_t size)
    {
        const std::size_t index = FineIndex(size);
        if (size > kMaxFine)
            return AllocateAnywhere(size);
        if (SFree* free = mFree[index]) {
            mFree[index] = free->next;
            return free;
        }
        if (Left() < (index + 1) * 8)
            return AllocateAnywhere(size);
        char* piece = mNext;
        mNext += (index + 1) * 8;
        return piece;
    }
    /// `size` is the one given to Allocate.
    void Free(void* piece, std::size_t size);

    char* AllocateText(std::size_t size)
    {
        const std::size_t room = TextRoom(size);
        if (size <= kMaxFine && !mFreeTexts[room / 2] && Left() >= room)
            return mEnd -= room;
        return AllocateTextAnywhere(size);
    }
    /// `size` is the one given to AllocateText.
    void FreeText(char* text, std::size_t size);

    /// All bytes taken from the heap.
    std::size_t GetBytes() const { return mBytes; }

private:
    struct SBlock;
    struct SFree {
        SFree* next;
    };
    struct SClass {
        std::size_t index, size;
    };

    static constexpr std::size_t kNbClasses = 32 + 24;
    static constexpr std::size_t kMaxFine = 256; // up to here a class every 8 bytes, 2 for texts

    static std::size_t FineIndex(std::size_t size)
    {
        return size <= 8 ? 0 : (size <= kMaxFine ? (size - 1) / 8 : 0);
    }
    /// A freed text holds a link.
    static std::size_t TextRoom(std::size_t size)
    {
        return size <= 8 || size > kMaxFine ? 8 : (size + 1) & ~std::size_t{1};
    }
    static SClass ClassOf(std::size_t size);
    std::size_t Left() const { return static_cast<std::size_t>(mEnd - mNext); }
    void* AllocateAnywhere(std::size_t size);
    char* AllocateTextAnywhere(std::size_t size);
    static std::size_t WholeSize(std::size_t size);
    SBlock* NewBlock(std::size_t size);
    void UnlinkBlock(SBlock* block);
    void NextBlock(std::size_t needed);

    SBlock* mBlocks = nullptr;
    char* mNext = nullptr;
    char* mEnd = nullptr;
    std::size_t mBlockSize = 512;
    std::size_t mBytes = 0;
    std::array<SFree*, kNbClasses> mFree{};
    std::array<char*, kMaxFine / 2 + 1> mFreeTexts{}; // each begins with the link to the next
};

} // namespace OrvaneXML
