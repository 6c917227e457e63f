#include "xml/CZelImage.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestBlockHost.h"
#include "tests/support/CXMLTextSource.h"
#include "tests/support/messageOf.h"
#include "tests/support/vtable.h"

#include <gtest/gtest.h>

#include <vector>

using namespace OvZel;
using ZelTest::CTestBlockHost;
using ZelTest::CXMLTextSource;
using ZelTest::messageOf;
using ZelTest::slotOf;

namespace {

struct CBitmap {
    std::uint32_t width = 9;
    std::uint32_t height = 9;
    std::uint8_t* pixels = nullptr;

    explicit CBitmap(IZelImage& image) { image.getImage(&width, &height, &pixels); }
};

void expectNoBitmap(IZelImage& image)
{
    const CBitmap bitmap(image);
    EXPECT_EQ(bitmap.width, 0U);
    EXPECT_EQ(bitmap.height, 0U);
    EXPECT_EQ(bitmap.pixels, nullptr);
}

constexpr std::uint8_t kPixels[8] = {1, 2, 3, 4, 5, 6, 7, 8};

} // namespace

TEST(ZelImage, SlotOrder)
{
    EXPECT_EQ(slotOf(&IZelImage::QueryInterface), 0);
    EXPECT_EQ(slotOf(&IZelImage::AddRef), 1);
    EXPECT_EQ(slotOf(&IZelImage::Release), 2);
    EXPECT_EQ(slotOf(&IZelImage::getObjectLink), 5);
    EXPECT_EQ(slotOf(&IZelImage::getBasicData), 6);
    EXPECT_EQ(slotOf(&IZelImage::getImage), 7);
    EXPECT_EQ(slotOf(&IZelImage::setImage), 8);
    EXPECT_EQ(slotOf(&IZelImage::getId), 9);
    EXPECT_EQ(slotOf(&IZelImage::setId), 10);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelImage>::obsolete1), 11);
    EXPECT_EQ(slotOf(&TZelFrontier<IZelImage>::obsolete3), 13);
}

TEST(ZelImage, ANewOneHasNoBitmap)
{
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    expectNoBitmap(*image);
    image->getImage(nullptr, nullptr, nullptr);
}

TEST(ZelImage, KeepsACopy)
{
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    std::vector<std::uint8_t> pixels(kPixels, kPixels + 8);
    image->setImage(2, 1, pixels.data());
    pixels.assign(8, 0);
    const CBitmap bitmap(*image);
    EXPECT_EQ(bitmap.width, 2U);
    EXPECT_EQ(bitmap.height, 1U);
    EXPECT_TRUE(std::equal(kPixels, kPixels + 8, bitmap.pixels));
    EXPECT_EQ(CBitmap(*image).pixels, bitmap.pixels);

    std::uint32_t height = 0;
    image->getImage(nullptr, &height, nullptr);
    EXPECT_EQ(height, 1U);
}

TEST(ZelImage, TakesItsOwnPixelsInAnotherShape)
{
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    image->setImage(2, 1, kPixels);
    image->setImage(1, 2, CBitmap(*image).pixels);
    const CBitmap bitmap(*image);
    EXPECT_EQ(bitmap.width, 1U);
    EXPECT_TRUE(std::equal(kPixels, kPixels + 8, bitmap.pixels));
}

TEST(ZelImage, AnyMissingPartDropsTheBitmap)
{
    struct {
        std::uint32_t width, height;
        const std::uint8_t* pixels;
    } const cases[] = {{0, 1, kPixels}, {1, 0, kPixels}, {1, 1, nullptr}};
    for (const auto& test : cases) {
        const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
        image->setImage(2, 1, kPixels);
        image->setImage(test.width, test.height, test.pixels);
        expectNoBitmap(*image);
    }
}

TEST(ZelImage, ABitmapThatIsTooLargeWarnsAndKeepsTheOldOne)
{
    CTestBlockHost host;
    const TZelComPtr<IZelImage> image(new CZelImage(&host.blockMgrRef()));
    image->setImage(2, 1, kPixels);
    image->setImage(0x80000000U, 0x80000000U, kPixels);
    EXPECT_EQ(CBitmap(*image).width, 2U);
    EXPECT_EQ(host.messages,
              std::vector<std::string>{"Exception in CZelImage::setImage : std::bad_alloc"});
}

TEST(ZelImage, HasOneIdentifier)
{
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    const TZelComPtr<IZelImage> other(new CZelImage(nullptr));
    EXPECT_FALSE(image->getId()->isNull());
    EXPECT_NE(*image->getId(), *other->getId());
    EXPECT_EQ(*image->getId(), *image->getBasicData()->getId());

    const CZelUUID first("000102030405060708090A0B0C0D0E0F");
    image->setId(&first);
    EXPECT_EQ(*image->getBasicData()->getId(), first);
    const CZelUUID second("F00102030405060708090A0B0C0D0E0F");
    image->getBasicData()->setId(&second);
    EXPECT_EQ(*image->getId(), second);
}

TEST(ZelImage, AnswersToTheIdentifierOfItsFamilyOnly)
{
    const TZelComPtr<IZelImage> image(new CZelImage(nullptr));
    void* out = image.get();
    EXPECT_EQ(image->QueryInterface(IZelImage::sIID, &out), kQueryNoInterface);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(image->QueryInterface(IZelBasic::sIID, nullptr), kQueryInvalidArgument);
    EXPECT_EQ(image->QueryInterface(IZelBasic::sIID, &out), kQueryOk);
    EXPECT_EQ(out, image.get());
    image->Release();
}

TEST(ZelImage, HasNoXMLFormOfItsOwn)
{
    CTestBlockHost host;
    const TZelComPtr<IZelImage> image(new CZelImage(&host.blockMgrRef()));
    EXPECT_EQ(image->getBasicData()->putInXML(nullptr), nullptr);
    EXPECT_EQ(host.messages,
              std::vector<std::string>{
                  "CZelEmptyBasicData::putInXML - This class doesn't implement XML"});
}

TEST(ZelImage, ReadsABitmapOrKeepsTheOldOne)
{
    const TZelComPtr<CZelImage> image(new CZelImage(nullptr));
    CXMLTextSource good("000000010000000100000001"
                        "00000001"
                        "44112233");
    image->readImage(good);
    EXPECT_EQ(CBitmap(*image).pixels[3], 0x44);

    CXMLTextSource empty("");
    EXPECT_EQ(messageOf([&] { image->readImage(empty); }),
              "XCXMLImage::ReadHex - Read stream error");
    EXPECT_EQ(CBitmap(*image).width, 1U);

    CXMLTextSource noArea("000000010000000000000001");
    image->readImage(noArea);
    expectNoBitmap(*image);
}

TEST(ZelImage, IsMadeByItsManager)
{
    const TZelComPtr<TComObjectMgr<CZelImage, IZelImage>> images(
        new TComObjectMgr<CZelImage, IZelImage>(nullptr));
    IZelImage* const image = images->newZelObject(-1);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(*images->getObjectIID(), IZelImage::sIID);
    EXPECT_EQ(image->getObjectLink()->getMgrRef(), nullptr);
}
