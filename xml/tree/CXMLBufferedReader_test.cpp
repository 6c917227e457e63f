#include "xml/tree/CXMLBufferedReader.h"

#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

namespace OrvaneXML {

using ZelTest::CXMLTextSource;

TEST(XmlBufferedReader, GivesAllBytesAndTakesOneBackAnywhere)
{
    std::string text(70'000, ' ');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>(i * 7);
    for (std::size_t most : {std::size_t{1}, std::size_t{7}, std::size_t{100'000}}) {
        CXMLTextSource source(text, most);
        CXMLBufferedReader reader(&source);
        for (char c : text) {
            ASSERT_EQ(reader.ReadChar(), static_cast<unsigned char>(c));
            reader.UnRead();
            ASSERT_EQ(reader.ReadChar(), static_cast<unsigned char>(c));
        }
        EXPECT_LT(reader.ReadChar(), 0);
        reader.UnRead(); // none was read
        EXPECT_LT(reader.ReadChar(), 0);
    }
}

TEST(XmlBufferedReader, TakesBackAcrossARefill)
{
    CXMLTextSource source("abcdef", 3);
    CXMLBufferedReader reader(&source);
    for (int i = 0; i < 3; ++i)
        reader.ReadChar();
    ASSERT_TRUE(reader.Refill());
    reader.UnRead();
    EXPECT_EQ(reader.ReadChar(), 'c');
    EXPECT_EQ(reader.ReadChar(), 'd');
}

TEST(XmlBufferedReader, StretchesKeepWhatIsUnread)
{
    CXMLTextSource source("abcdef", 4);
    CXMLBufferedReader reader(&source);
    EXPECT_EQ(reader.Begin(), reader.End());
    ASSERT_TRUE(reader.Refill());
    EXPECT_EQ(std::string(reader.Begin(), reader.End()), "abcd");
    reader.Consume(3);
    ASSERT_TRUE(reader.Refill());
    EXPECT_EQ(std::string(reader.Begin(), reader.End()), "def");
    EXPECT_EQ(*reader.End(), 0);
    EXPECT_FALSE(reader.Refill());
    EXPECT_EQ(std::string(reader.Begin(), reader.End()), "def");
    reader.UnRead();
    EXPECT_EQ(reader.ReadChar(), 'c');
}

TEST(XmlBufferedReader, AFullWindowDoesNotGrow)
{
    CXMLTextSource source(std::string(200'000, 'x'));
    CXMLBufferedReader reader(&source);
    ASSERT_TRUE(reader.Refill());
    EXPECT_FALSE(reader.Refill());
    EXPECT_EQ(reader.End() - reader.Begin(), 64 * 1024);
}

} // namespace OrvaneXML
