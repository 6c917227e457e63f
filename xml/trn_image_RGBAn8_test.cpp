#include "xml/trn_image_RGBAn8.h"

#include "tests/support/messageOf.h"
#include "xml/trn_autoptr.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::messageOf;

namespace {

using CPixel = trn_image_RGBAn8::CPixel;

class CWatchedImage : public trn_image_RGBAn8 {
public:
    explicit CWatchedImage(int& nbAlive) : mNbAlive(nbAlive) { ++mNbAlive; }
    ~CWatchedImage() override { --mNbAlive; }

private:
    int& mNbAlive;
};

} // namespace

TEST(TrnReference, TheLastReleaseDeletes)
{
    int nbAlive = 0;
    {
        trn_autoptr<CWatchedImage> first(new CWatchedImage(nbAlive));
        trn_autoptr<CWatchedImage> second = first;
        first = trn_autoptr<CWatchedImage>();
        EXPECT_EQ(nbAlive, 1);
        second = trn_autoptr<CWatchedImage>(second.get());
        EXPECT_EQ(nbAlive, 1);
    }
    EXPECT_EQ(nbAlive, 0);
}

TEST(TrnImage, PlainImagesHaveNoConversions)
{
    trn_timage<CPixel> image;
    trn_RGBAn8 common{};
    CPixel pixel{};
    EXPECT_EQ(messageOf([&] { image.convert_from(common, pixel); }),
              "trn_timage< _T >::convert_from ( const trn_RGBAn8 &, _T & ) not defined");
    EXPECT_EQ(messageOf([&] { image.convert_from(pixel, common); }),
              "trn_timage< _T >::convert_from ( const _T &, trn_RGBAn8 & ) not defined");
    EXPECT_EQ(messageOf([&] { image.average(pixel, 1, pixel, 1, pixel, 1, pixel, 1); }),
              "trn_timage< _T >::average(const _T&,trn_float,const _T&,trn_float,const "
              "_T&,trn_float,const _T&,trn_float) not defined");
}

TEST(TrnImage, ConvertsByCopyingChannels)
{
    const trn_image_RGBAn8 image;
    CPixel pixel{};
    image.convert_from(trn_RGBAn8{1, 2, 3, 4}, pixel);
    EXPECT_EQ(pixel, (CPixel{1, 2, 3, 4}));
    trn_RGBAn8 common{};
    image.convert_from(CPixel{5, 6, 7, 8}, common);
    EXPECT_EQ(common.red, 5);
    EXPECT_EQ(common.green, 6);
    EXPECT_EQ(common.blue, 7);
    EXPECT_EQ(common.alpha, 8);
}

TEST(TrnImage, AveragesInWholeNumbers)
{
    const trn_image_RGBAn8 image;
    const CPixel a{10, 0, 255, 1}, b{20, 0, 255, 2}, c{30, 1, 255, 3}, d{40, 0, 255, 4};
    EXPECT_EQ(image.average(a, 1, b, 1, c, 1, d, 1), (CPixel{25, 0, 255, 2}));
    EXPECT_EQ(image.average(a, 3, b, 0, c, 0, d, 1), (CPixel{17, 0, 255, 1}));
    EXPECT_EQ(messageOf([&] { image.average(a, 0, b, 0, c, 0, d, 0); }),
              "trn_image_RGBAn8::average - Assertion failed");
}

TEST(TrnImage, ResizeGivesZeroedPixels)
{
    trn_image_RGBAn8 image;
    image.resize(2, 1);
    image.pixels()[1] = CPixel{1, 2, 3, 4};
    const CPixel* const before = image.pixels();
    image.resize(2, 1);
    EXPECT_EQ(image.pixels(), before);
    EXPECT_EQ(image.pixels()[1], (CPixel{1, 2, 3, 4}));
    image.resize(1, 2);
    EXPECT_EQ(image.width(), 1U);
    EXPECT_EQ(image.height(), 2U);
    EXPECT_EQ(image.pixels()[1], (CPixel{0, 0, 0, 0}));
}

TEST(TrnImage, AResizeThatFailsKeepsThePixels)
{
    trn_image_RGBAn8 image;
    image.resize(1, 1);
    image.pixels()[0] = CPixel{1, 2, 3, 4};
    // The second product is 0 in 64 bits when it is multiplied by four without care.
    EXPECT_THROW(image.resize(16385, 16384), std::bad_alloc);
    EXPECT_THROW(image.resize(0x80000000U, 0x80000000U), std::bad_alloc);
    EXPECT_EQ(image.width(), 1U);
    EXPECT_EQ(image.pixels()[0], (CPixel{1, 2, 3, 4}));
}

TEST(TrnImage, AViewLeavesThePixelsToTheirOwner)
{
    CPixel pixels[2] = {{1, 2, 3, 4}, {5, 6, 7, 8}};
    {
        trn_image_RGBAn8 view(2, 1, pixels);
        EXPECT_EQ(view.pixels(), pixels);
        view.resize(1, 1);
        EXPECT_NE(view.pixels(), pixels);
    }
    EXPECT_EQ(pixels[1], (CPixel{5, 6, 7, 8}));
}
