#include "views/CZelInsertionObject.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <functional>

using namespace OvZel;
using ZelTest::CTestDocument;
using ZelTest::isSame;

namespace {

CZelPoint2D normalisedAt(const IZelInsertionObject& object, std::int32_t index)
{
    CZelPoint2D point{-1.0, -1.0};
    object.getVanishingLinesPointsPosition(index, &point);
    return point;
}

CZelPixel2D pixelAt(const IZelInsertionObject& object, std::int32_t index)
{
    CZelPixel2D point{-1.0, -1.0};
    object.getVanishingLinesPointsPosition(index, &point);
    return point;
}

template <class Point>
bool isAt(const Point& point, double x, double y)
{
    return point.x == x && point.y == y;
}

/// What a client hands over for a snapshot, and what comes back.
struct CValues {
    CZelPoint2D normalised[15];
    CZelPixel2D pixels[15];
    float three[3][3] = {};
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool flags[4] = {};

    void restoreFrom(const CZelInsertionObject& object)
    {
        object.restoreSnapshot(&width, &height, &flags[0], &flags[1], &flags[2], &flags[3],
                               normalised, pixels, three[0], three[1], three[2]);
    }
};

} // namespace

TEST(InsertionObject, ANewOne)
{
    CZelInsertionObject object(nullptr);
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    object.getPictureSize(&width, &height);
    EXPECT_EQ(width, 1U);
    EXPECT_EQ(height, 1U);
    EXPECT_EQ(object.getAngle(), 60.0F);
    EXPECT_TRUE(object.getFlagA());
    for (const bool flag :
         {object.getActive(), object.getFlagB(), object.getFlagC(), object.getFlagD(),
          object.getFlagE(), object.getAxesVisibility(), object.getModelVisibility(),
          object.getPerspectiveToolVisibility(), object.getYAxeInverted()})
        EXPECT_FALSE(flag);
    float sum = 7.0F;
    object.getAccumulator(&sum);
    EXPECT_EQ(sum, 0.0F);
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(object.getValue(i), 0.0F);
    for (std::int32_t i = 0; i < 6; ++i)
        EXPECT_EQ(object.getSixValue(i), 1.0F);
    for (std::int32_t i = 0; i < 15; ++i) {
        EXPECT_TRUE(isAt(normalisedAt(object, i), 0.0, 0.0));
        EXPECT_TRUE(isAt(pixelAt(object, i), 0.0, 0.0));
    }
    EXPECT_EQ(object.getSizeAxis(), 0);
}

TEST(InsertionObject, StoresPlainValues)
{
    using I = IZelInsertionObject;
    CZelInsertionObject object(nullptr);
    ZelTest::expectAccessors<I>(
        object,
        {ACCESS(I, Active, true), ACCESS(I, FlagA, false), ACCESS(I, FlagB, true),
         ACCESS(I, FlagC, true), ACCESS(I, FlagD, true), ACCESS(I, FlagE, true),
         ACCESS(I, SizeAxis, -7), ACCESS(I, AxesVisibility, true), ACCESS(I, ModelVisibility, true),
         ACCESS(I, PerspectiveToolVisibility, true), ACCESS(I, YAxeInverted, true)});
}

TEST(InsertionObject, HoldsItsTables)
{
    CZelInsertionObject object(nullptr);
    for (std::int32_t i = 0; i < 4; ++i) {
        object.setAxesPosition(i, {i + 0.5, -1.0});
        object.setReperePosition(i, {1.0, i + 0.25, 2.0});
    }
    for (std::int32_t i = 0; i < 6; ++i) {
        object.setPerpectiveToolPosition(i, {3.0, i + 0.75});
        object.setSixValue(i, static_cast<float>(i) + 0.5F);
    }
    for (std::int32_t i = 0; i < 3; ++i)
        object.setValue(i, static_cast<float>(i) + 0.25F);
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_TRUE(isAt(object.getAxesPosition(i), i + 0.5, -1.0));
        EXPECT_TRUE(isSame(object.getReperePosition(i), CZelPoint{1.0, i + 0.25, 2.0}));
    }
    for (std::int32_t i = 0; i < 6; ++i) {
        EXPECT_TRUE(isAt(object.getPerpectiveToolPosition(i), 3.0, i + 0.75));
        EXPECT_EQ(object.getSixValue(i), static_cast<float>(i) + 0.5F);
    }
    for (std::int32_t i = 0; i < 3; ++i)
        EXPECT_EQ(object.getValue(i), static_cast<float>(i) + 0.25F);
}

TEST(InsertionObject, ABadIndexWarnsGivesZeroAndChangesNothing)
{
    using I = IZelInsertionObject;
    struct {
        const char* warning;
        std::int32_t index; ///< the first bad one
        std::function<void(I&, std::int32_t)> call;
    } cases[] = {
        {"getAxesPosition", 4,
         [](I& o, std::int32_t i) { EXPECT_TRUE(isAt(o.getAxesPosition(i), 0.0, 0.0)); }},
        {"setAxesPosition", 4,
         [](I& o, std::int32_t i) {
             o.setAxesPosition(i, {9, 9});
         }},
        {"getVanishingLinesPointsPosition", 15,
         [](I& o, std::int32_t i) { EXPECT_TRUE(isAt(normalisedAt(o, i), 0.0, 0.0)); }},
        {"getVanishingLinesPointsPosition", 15,
         [](I& o, std::int32_t i) { EXPECT_TRUE(isAt(pixelAt(o, i), 0.0, 0.0)); }},
        {"setVanishingLinesPointsPosition", 15,
         [](I& o, std::int32_t i) {
             o.setVanishingLinesPointsPosition(i, CZelPoint2D{9, 9});
         }},
        {"setVanishingLinesPointsPosition", 15,
         [](I& o, std::int32_t i) {
             o.setVanishingLinesPointsPosition(i, CZelPixel2D{9, 9});
         }},
        {"getPerpectiveToolPosition", 6,
         [](I& o, std::int32_t i) { EXPECT_TRUE(isAt(o.getPerpectiveToolPosition(i), 0.0, 0.0)); }},
        {"setPerpectiveToolPosition", 6,
         [](I& o, std::int32_t i) {
             o.setPerpectiveToolPosition(i, {9, 9});
         }},
        {"getReperePosition", 4,
         [](I& o, std::int32_t i) { EXPECT_TRUE(isSame(o.getReperePosition(i), CZelPoint())); }},
        {"setReperePosition", 4,
         [](I& o, std::int32_t i) {
             o.setReperePosition(i, {9, 9, 9});
         }},
    };
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setAxesPosition(0, {1, 1});
    object.setAxesPosition(3, {1, 1});
    object.setVanishingLinesPointsPosition(0, CZelPixel2D{1, 1});
    object.setVanishingLinesPointsPosition(14, CZelPixel2D{1, 1});
    object.setPerpectiveToolPosition(5, {1, 1});
    object.setReperePosition(0, {1, 1, 1});
    object.setReperePosition(3, {1, 1, 1});
    for (const auto& [warning, index, call] : cases) {
        const std::vector<std::string> expected = {std::string(warning) + ": index out of range"};
        call(object, index);
        EXPECT_EQ(document.takeMessages(), expected);
        call(object, -1);
        EXPECT_EQ(document.takeMessages(), expected);
        CZelInsertionObject silent(nullptr);
        call(silent, index);
    }
    EXPECT_TRUE(isAt(object.getAxesPosition(3), 1.0, 1.0));
    EXPECT_TRUE(isAt(normalisedAt(object, 14), 1.0, 1.0));
    EXPECT_TRUE(isAt(pixelAt(object, 14), 1.0, 1.0));
    EXPECT_TRUE(isAt(object.getPerpectiveToolPosition(5), 1.0, 1.0));
    EXPECT_TRUE(isSame(object.getReperePosition(3), CZelPoint{1, 1, 1}));
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(InsertionObject, ABadIndexOfTheValuesIsSilent)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    for (const std::int32_t index : {-1, 3, 6}) {
        if (index != 3) {
            object.setSixValue(index, 9.0F);
            EXPECT_EQ(object.getSixValue(index), 0.0F);
        }
        object.setValue(index, 9.0F);
        EXPECT_EQ(object.getValue(index), 0.0F);
    }
    EXPECT_EQ(object.getValue(2), 0.0F);
    EXPECT_EQ(object.getSixValue(5), 1.0F);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(InsertionObject, PixelsAreNormalised)
{
    struct {
        std::uint32_t width, height;
        double x, y, normalX, normalY;
    } cases[] = {
        {200, 100, 100, 50, 0.5, 0.5},
        {100, 200, 50, 100, 0.25, 0.5}, // higher than wide: x is divided by the height, too
        {100, 100, 25, 75, 0.25, 0.75},
        {0, 0, 3, 4, 0.0, 0.0},
        {4, 0, 3, 4, 0.75, 0.0},
        {0, 4, 3, 4, 0.75, 1.0},
        {16777217, 1, 16777216, 1, 1.0, 1.0}, // the width in single precision
        {1, 16777217, 0, 16777216, 0.0, 1.0},
    };
    CZelInsertionObject object(nullptr);
    for (const auto& [width, height, x, y, normalX, normalY] : cases) {
        object.setPictureSize(width, height, false);
        object.setVanishingLinesPointsPosition(14, CZelPixel2D{x, y});
        EXPECT_TRUE(isAt(pixelAt(object, 14), x, y));
        const CZelPoint2D point = normalisedAt(object, 14);
        EXPECT_EQ(point.x, normalX) << width << " by " << height;
        EXPECT_EQ(point.y, normalY) << width << " by " << height;
    }
}

TEST(InsertionObject, ANormalisedPointLeavesThePixels)
{
    CZelInsertionObject object(nullptr);
    object.setPictureSize(200, 100, true);
    object.setVanishingLinesPointsPosition(2, CZelPixel2D{20, 10});
    object.setVanishingLinesPointsPosition(2, CZelPoint2D{0.75, 0.5});
    EXPECT_TRUE(isAt(normalisedAt(object, 2), 0.75, 0.5));
    EXPECT_TRUE(isAt(pixelAt(object, 2), 20, 10));
}

TEST(InsertionObject, ThePictureSizeIsStoredWithKeepOrNot)
{
    CZelInsertionObject object(nullptr);
    for (const bool keep : {true, false}) {
        const std::uint32_t size = keep ? 640 : 4294967295U;
        object.setPictureSize(size, 3, keep);
        object.setPictureSize(size, 3, keep);
        std::uint32_t width = 0;
        std::uint32_t height = 0;
        object.getPictureSize(&width, nullptr);
        object.getPictureSize(nullptr, &height);
        EXPECT_EQ(width, size);
        EXPECT_EQ(height, 3U);
    }
}

TEST(InsertionObject, TheAccumulatorIsASum)
{
    CZelInsertionObject object(nullptr);
    object.addToAccumulator(1.5F);
    object.addToAccumulator(2.25F);
    float sum = 0.0F;
    object.getAccumulator(&sum);
    EXPECT_EQ(sum, 3.75F);
    object.resetAccumulator();
    object.getAccumulator(&sum);
    EXPECT_EQ(sum, 0.0F);
    object.getAccumulator(nullptr);
}

TEST(InsertionObject, ResettingTheSixValuesClearsFlagE)
{
    CZelInsertionObject object(nullptr);
    object.setFlagE(true);
    object.setFlagD(true);
    for (std::int32_t i = 0; i < 6; ++i)
        object.setSixValue(i, 5.0F);
    EXPECT_TRUE(object.getFlagE());
    object.resetSixValues();
    for (std::int32_t i = 0; i < 6; ++i)
        EXPECT_EQ(object.getSixValue(i), 1.0F);
    EXPECT_FALSE(object.getFlagE());
    EXPECT_TRUE(object.getFlagD());
}

TEST(InsertionObject, ASnapshotIsApartFromTheLiveValues)
{
    CZelInsertionObject object(nullptr);
    CValues back;
    back.width = back.height = 7;
    back.flags[0] = true;
    back.normalised[14].x = 7;
    back.restoreFrom(object);
    EXPECT_EQ(back.width + back.height, 0U);
    EXPECT_FALSE(back.flags[0]);
    EXPECT_EQ(back.normalised[14].x, 0.0);

    CValues given;
    for (int i = 0; i < 15; ++i) {
        given.normalised[i] = {i + 0.5, i + 0.25};
        given.pixels[i] = {i + 100.0, i + 200.0};
    }
    for (int i = 0; i < 9; ++i)
        given.three[i / 3][i % 3] = static_cast<float>(i + 1);
    object.saveSnapshot(11, 12, false, true, false, true, given.normalised, given.pixels,
                        given.three[0], given.three[1], given.three[2]);
    back.restoreFrom(object);
    EXPECT_EQ(back.width, 11U);
    EXPECT_EQ(back.height, 12U);
    const bool flags[] = {false, true, false, true};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(back.flags[i], flags[i]) << i;
    for (int i = 0; i < 15; ++i) {
        EXPECT_TRUE(isAt(back.normalised[i], i + 0.5, i + 0.25));
        EXPECT_TRUE(isAt(back.pixels[i], i + 100.0, i + 200.0));
    }
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(back.three[i / 3][i % 3], static_cast<float>(i + 1));

    EXPECT_TRUE(object.getFlagA());
    EXPECT_FALSE(object.getFlagB());
    EXPECT_EQ(object.getValue(0), 0.0F);
    EXPECT_EQ(object.getSixValue(5), 1.0F);
    EXPECT_TRUE(isAt(normalisedAt(object, 1), 0.0, 0.0));
}

TEST(InsertionObject, ASnapshotTakesNullArraysAsZerosAndFillsNone)
{
    CZelInsertionObject object(nullptr);
    CValues values;
    for (CZelPoint2D& point : values.normalised)
        point = {1, 1};
    values.three[2][2] = 4.0F;
    object.saveSnapshot(1, 2, true, true, true, true, values.normalised, values.pixels,
                        values.three[0], values.three[1], values.three[2]);
    object.restoreSnapshot(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr);
    object.saveSnapshot(3, 4, true, true, true, true, nullptr, nullptr, nullptr, nullptr, nullptr);
    values.restoreFrom(object);
    EXPECT_EQ(values.width, 3U);
    EXPECT_TRUE(isAt(values.normalised[14], 0.0, 0.0));
    EXPECT_EQ(values.three[2][2], 0.0F);
}
