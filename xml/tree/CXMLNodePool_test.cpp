#include "xml/tree/CXMLNodePool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace OrvaneXML {

TEST(XmlNodePool, PiecesDoNotOverlap)
{
    CXMLNodePool pool;
    struct SPiece {
        unsigned char* bytes;
        std::size_t size;
    };
    std::vector<SPiece> pieces;
    for (std::size_t size = 1; size < 40'000; size += 1 + size / 9) {
        auto* bytes = static_cast<unsigned char*>(pool.Allocate(size));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % 8, 0u);
        std::memset(bytes, static_cast<int>(pieces.size() & 0xFF), size);
        pieces.push_back({bytes, size});
    }
    for (std::size_t i = 0; i < pieces.size(); ++i)
        for (std::size_t at = 0; at < pieces[i].size; ++at)
            ASSERT_EQ(pieces[i].bytes[at], i & 0xFF);
    for (const SPiece& piece : pieces)
        pool.Free(piece.bytes, piece.size);
}

TEST(XmlNodePool, FreedPiecesServeAgain)
{
    CXMLNodePool pool;
    std::size_t bytesAfterFirst = 0;
    for (int round = 0; round < 100; ++round) {
        std::vector<void*> pieces;
        for (std::size_t size = 1; size < 60'000; size = size * 5 / 4 + 1)
            pieces.push_back(pool.Allocate(size));
        std::size_t i = 0;
        for (std::size_t size = 1; size < 60'000; size = size * 5 / 4 + 1)
            pool.Free(pieces[i++], size);
        if (round == 0)
            bytesAfterFirst = pool.GetBytes();
    }
    EXPECT_EQ(pool.GetBytes(), bytesAfterFirst);
}

TEST(XmlNodePool, StartsSmallAndGivesLargePiecesBack)
{
    CXMLNodePool pool;
    EXPECT_EQ(pool.GetBytes(), 0u);
    pool.Allocate(64);
    EXPECT_EQ(pool.GetBytes(), 512u);
    void* large = pool.Allocate(1'000'000);
    EXPECT_GT(pool.GetBytes(), 1'000'000u);
    pool.Free(large, 1'000'000);
    EXPECT_EQ(pool.GetBytes(), 512u);
}

TEST(XmlNodePool, TextsLieBesideNodesAndServeAgain)
{
    CXMLNodePool pool;
    std::vector<char*> texts;
    for (std::size_t size = 1; size < 600; ++size) {
        void* node = pool.Allocate(24);
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(node) % 8, 0u);
        std::memset(node, 0xFF, 24);
        texts.push_back(pool.AllocateText(size));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(texts.back()) % 2, 0u);
        std::memset(texts.back(), static_cast<int>(size & 0x7F), size);
    }
    for (std::size_t size = 1; size < 600; ++size)
        for (std::size_t at = 0; at < size; ++at)
            ASSERT_EQ(texts[size - 1][at], static_cast<char>(size & 0x7F));
    const std::size_t bytes = pool.GetBytes();
    for (std::size_t size = 1; size < 600; ++size)
        pool.FreeText(texts[size - 1], size);
    for (std::size_t size = 1; size < 600; ++size)
        pool.AllocateText(size);
    EXPECT_EQ(pool.GetBytes(), bytes);
}

TEST(XmlNodePool, TextsLieClose)
{
    CXMLNodePool pool;
    const char* first = pool.AllocateText(9);
    EXPECT_EQ(first - pool.AllocateText(9), 10);
}

} // namespace OrvaneXML
