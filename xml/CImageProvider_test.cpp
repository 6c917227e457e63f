#include "xml/CImageProvider.h"

#include "tests/support/CTestBlockHost.h"
#include "tests/support/CTestElement.h"
#include "xml/CZelImage.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CTestElement;
using ZelTest::CXMLTextTarget;

namespace {

constexpr std::uint8_t kPixel[4] = {0x11, 0x22, 0x33, 0x44};

} // namespace

TEST(ImageProvider, WritesTheBitmapOfTheTimeOfTheSave)
{
    CTestBlockHost host;
    CTestElement document;
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    document.element()->SetCData(new CImageProvider(&host, image.get()));
    EXPECT_EQ(document.text(), "<E><![CDATA[]]></E>");
    image->setImage(1, 1, kPixel);
    EXPECT_EQ(document.text(), "<E><![CDATA[0000000100000001000000010000000144112233]]></E>");
}

TEST(ImageProvider, SucceedsWithoutAnImage)
{
    CTestBlockHost host;
    CXMLTextTarget stream;
    CImageProvider provider(&host, nullptr);
    EXPECT_TRUE(provider.Write(&stream, nullptr, nullptr));
    EXPECT_EQ(stream.text, "");
    EXPECT_TRUE(host.messages.empty());
}

TEST(ImageProvider, SendsTheTextOfAFailedWrite)
{
    CTestBlockHost host;
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    image->setImage(1, 1, kPixel);
    CImageProvider provider(&host, image.get());
    CXMLTextTarget full(10);
    EXPECT_FALSE(provider.Write(&full, nullptr, nullptr));
    EXPECT_EQ(host.messages, std::vector<std::string>{"XCXMLImage::WriteHex - Write stream error"});
}

TEST(ImageProvider, KeepsItsImageAndSoDoesItsClone)
{
    CTestBlockHost host;
    CTestElement document("<E><A/></E>");
    {
        const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
        image->setImage(1, 1, kPixel);
        document.element()->GetFirstElement()->SetCData(new CImageProvider(&host, image.get()));
    }
    document.element()->GetFirstElement()->GetNode()->CloneInto(document.element());
    document.element()->GetFirstElement()->Destroy();
    EXPECT_EQ(document.text(),
              "<E><A><![CDATA[0000000100000001000000010000000144112233]]></A></E>");
}
