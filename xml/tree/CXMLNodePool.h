#pragma once

#include <array>
#include <cstddef>

namespace OrvaneXML {

/// The memory of one tree: blocks cut into pieces, with free lists by size.
///
/// Blocks are small at first, so that a small tree stays small, and grow to 64 KiB. Pieces that do
/// not fit well into a block come from the heap on their own and go back there. All are aligned
/// to 8.
class CXMLNodePool {
public:
    CXMLNodePool() = default;
    ~CXMLNodePool();
    CXMLNodePool(const CXMLNodePool&) = delete;
    CXMLNodePool& operator=(const CXMLNodePool&) = delete;

    void* Allocate(std::size_t size);
    /// `size` is the one given to Allocate.
    void Free(void* piece, std::size_t size);
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

    static SClass ClassOf(std::size_t size);
    SBlock* NewBlock(std::size_t size);
    void UnlinkBlock(SBlock* block);
    void* AllocateLarge(std::size_t size);
    void NextBlock(std::size_t needed);

    SBlock* mBlocks = nullptr;
    char* mNext = nullptr;
    char* mEnd = nullptr;
    std::size_t mBlockSize = 512;
    std::size_t mBytes = 0;
    std::array<SFree*, kNbClasses> mFree{};
};

} // namespace OrvaneXML
