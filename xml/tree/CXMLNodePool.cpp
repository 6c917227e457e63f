#include "xml/tree/CXMLNodePool.h"

#include "core/largePages.h"

#include <algorithm>
#include <bit>
#include <new>

namespace OrvaneXML {

namespace {

constexpr std::size_t kMaxBlock = 16 * 1024 * 1024;
constexpr std::size_t kMaxPiece = 16 * 1024; // up to here four classes to a doubling

} // namespace

struct CXMLNodePool::SBlock {
    SBlock* previous;
    SBlock* next;
    std::size_t size;
    std::size_t padding; // keeps what follows aligned to 16
};

CXMLNodePool::~CXMLNodePool()
{
    while (mBlocks) {
        SBlock* next = mBlocks->next;
        ::operator delete(mBlocks);
        mBlocks = next;
    }
}

CXMLNodePool::SClass CXMLNodePool::ClassOf(std::size_t size)
{
    if (size <= kMaxFine) {
        const std::size_t index = (std::max<std::size_t>(size, 1) - 1) / 8;
        return {index, (index + 1) * 8};
    }
    const auto power = static_cast<std::size_t>(std::bit_width(size - 1)) - 1; // 8 to 13
    const std::size_t step = (std::size_t{1} << power) / 4;
    const std::size_t quarter = (size - 1 - (std::size_t{1} << power)) / step;
    return {32 + (power - 8) * 4 + quarter, (std::size_t{1} << power) + (quarter + 1) * step};
}

/// What a block of so many bytes takes.
std::size_t CXMLNodePool::WholeSize(std::size_t size)
{
    return sizeof(SBlock) + size + kWidestStep;
}

CXMLNodePool::SBlock* CXMLNodePool::NewBlock(std::size_t size)
{
    auto* block = static_cast<SBlock*>(::operator new(WholeSize(size)));
    adviseLargePages(block, WholeSize(size));
    *block = {nullptr, mBlocks, size, 0};
    if (mBlocks)
        mBlocks->previous = block;
    mBlocks = block;
    mBytes += WholeSize(size);
    return block;
}

void CXMLNodePool::UnlinkBlock(SBlock* block)
{
    (block->previous ? block->previous->next : mBlocks) = block->next;
    if (block->next)
        block->next->previous = block->previous;
    mBytes -= WholeSize(block->size);
}

void CXMLNodePool::NextBlock(std::size_t needed)
{
    // What the old block has left becomes a piece of the largest class that it can serve.
    for (std::size_t left = Left() & ~std::size_t{7}; left >= 8;) {
        SClass piece = ClassOf(left);
        if (piece.size > left)
            piece = ClassOf(std::min(left, kMaxFine));
        mFree[piece.index] = new (mNext) SFree{mFree[piece.index]};
        mNext += piece.size;
        left -= piece.size;
    }
    SBlock* block = NewBlock(std::max(needed, mBlockSize - WholeSize(0)));
    mNext = reinterpret_cast<char*>(block + 1);
    mEnd = mNext + block->size;
    mBlockSize = std::min(mBlockSize * 2, kMaxBlock);
}

void* CXMLNodePool::AllocateAnywhere(std::size_t size)
{
    if (size > kMaxPiece)
        return NewBlock(size) + 1;
    const SClass piece = ClassOf(size);
    if (SFree* free = mFree[piece.index]) {
        mFree[piece.index] = free->next;
        return free;
    }
    if (Left() < piece.size)
        NextBlock(piece.size);
    void* result = mNext;
    mNext += piece.size;
    return result;
}

char* CXMLNodePool::AllocateTextAnywhere(std::size_t size)
{
    if (size > kMaxFine)
        return static_cast<char*>(Allocate(size));
    const std::size_t room = TextRoom(size);
    if (char* free = mFreeTexts[room / 2]) {
        std::memcpy(&mFreeTexts[room / 2], free, sizeof(char*));
        return free;
    }
    if (Left() < room)
        NextBlock(room);
    return mEnd -= room;
}

void CXMLNodePool::FreeText(char* text, std::size_t size)
{
    if (size > kMaxFine)
        return Free(text, size);
    char*& list = mFreeTexts[TextRoom(size) / 2];
    std::memcpy(text, &list, sizeof(char*));
    list = text;
}

void CXMLNodePool::Free(void* piece, std::size_t size)
{
    if (size > kMaxPiece) {
        SBlock* block = static_cast<SBlock*>(piece) - 1;
        UnlinkBlock(block);
        ::operator delete(block);
        return;
    }
    SFree*& list = mFree[ClassOf(size).index];
    list = new (piece) SFree{list};
}

} // namespace OrvaneXML
