#include "views/CCamera.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <cmath>
#include <limits>

using namespace OvZel;
using ZelTest::CTestDocument;
using ZelTest::isSame;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kTwoPi = 6.283185307179586;
const std::vector<std::string> kClipped = {"Method setFocal has clipped a value out of range."};

} // namespace

TEST(Camera, ANewOne)
{
    TZelComPtr camera(new CCamera(nullptr));
    EXPECT_STREQ(camera->getName(), "View 0");
    EXPECT_TRUE(isSame(camera->getPosition(), CZelPoint{50, 50, -60}));
    EXPECT_TRUE(isSame(camera->getTarget(), CZelPoint{50, 50, 50}));
    EXPECT_TRUE(isSame(camera->getUp(), CZelPoint{0, 1, 0}));
    EXPECT_EQ(camera->getViewFlags(), 2);
    EXPECT_EQ(camera->getRoll(), 0.00001);
    EXPECT_EQ(camera->getFocal(), 50.0);
    EXPECT_EQ(camera->getTargetType(), 0);
    EXPECT_TRUE(camera->getObjectId().isNull());
    EXPECT_FALSE(camera->getUpIsSet());
    EXPECT_FALSE(camera->getArchitectFlag());
    EXPECT_FALSE(camera->getInsertionObject()->getActive());
}

TEST(Camera, StoresPlainValues)
{
    using I = IZelCamera;
    TZelComPtr camera(new CCamera(nullptr));
    ZelTest::expectAccessors<I>(
        *camera, {ACCESS(I, Position, (CZelPoint{1, 2, 3})),
                  ACCESS(I, Target, (CZelPoint{4, 5, 6})), ACCESS(I, Roll, 1.0),
                  ACCESS(I, Focal, 60.0), ACCESS(I, ViewFlags, -1), ACCESS(I, TargetType, 1),
                  ACCESS(I, ObjectId, CZelUUID{"000102030405060708090A0B0C0D0E0F"}),
                  ACCESS(I, Up, (CZelPoint{7, 8, 9})), ACCESS(I, ArchitectFlag, true)});
    EXPECT_TRUE(camera->getUpIsSet());
}

TEST(Camera, FlagsAreBitsOfTheViewFlags)
{
    TZelComPtr camera(new CCamera(nullptr));
    EXPECT_FALSE(camera->getFlag0());
    EXPECT_TRUE(camera->getFlag1());
    camera->setFlag1(false);
    EXPECT_EQ(camera->getViewFlags(), 0);
    camera->setFlag0();
    EXPECT_TRUE(camera->getFlag0());
    EXPECT_EQ(camera->getViewFlags(), 1);
    camera->setFlag1(true);
    EXPECT_EQ(camera->getViewFlags(), 3);
    camera->setViewFlags(-4);
    EXPECT_FALSE(camera->getFlag0());
    EXPECT_FALSE(camera->getFlag1());
    camera->setFlag1(true);
    EXPECT_EQ(camera->getViewFlags(), -2);
}

TEST(Camera, TheRollIsWrapped)
{
    struct {
        double given, kept;
    } cases[] = {
        {0.0, 0.0},
        {kTwoPi, kTwoPi},
        {-0.1, 6.183185307179586},
        {7.0, 0.7168146928204138},
        {-kTwoPi, 0.0},
        {20.0, 20.0 - 3 * kTwoPi},
        {10000.0, std::fmod(10000.0, kTwoPi)},
        {1e300, std::fmod(1e300, kTwoPi)},
        {-1e300, std::fmod(-1e300, kTwoPi) + kTwoPi},
        {kInfinity, 0.0},
        {-kInfinity, 0.0},
    };
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    for (const auto [given, kept] : cases) {
        camera->setRoll(given);
        EXPECT_NEAR(camera->getRoll(), kept, 1e-9) << "given " << given;
    }
    camera->setRoll(kTwoPi);
    EXPECT_EQ(camera->getRoll(), kTwoPi);
    camera->setRoll(kNotANumber);
    EXPECT_TRUE(std::isnan(camera->getRoll()));
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(Camera, UpToTenThousandTheRollIsWrappedStepByStep)
{
    TZelComPtr camera(new CCamera(nullptr));
    for (const double given : {10000.0, -10000.0}) {
        double kept = given;
        while (kept < 0.0)
            kept += kTwoPi;
        while (kept > kTwoPi)
            kept -= kTwoPi;
        camera->setRoll(given);
        EXPECT_EQ(camera->getRoll(), kept);
    }
}

TEST(Camera, TheFocalIsClippedInADocument)
{
    struct {
        double given, kept;
        bool warns;
    } cases[] = {{200.0, 180.0, true},    {180.0, 180.0, false},    {0.0, 0.0, false},
                 {-0.5, 0.0, true},       {kNotANumber, 0.0, true}, {kInfinity, 180.0, true},
                 {-kInfinity, 0.0, true}, {90.0, 90.0, false}};
    CTestDocument document;
    TZelComPtr cameras(new TComObjectMgr<CCamera, IZelCamera>(document.ref()));
    IZelCamera* camera = cameras->newZelObject(-1);
    for (const auto [given, kept, warns] : cases) {
        camera->setFocal(given);
        EXPECT_EQ(camera->getFocal(), kept) << "given " << given;
        EXPECT_EQ(document.takeMessages(), warns ? kClipped : std::vector<std::string>())
            << "given " << given;
    }
}

TEST(Camera, WithoutADocumentAnyFocalStays)
{
    TZelComPtr camera(new CCamera(nullptr));
    for (const double given : {200.0, -3.0, kInfinity}) {
        camera->setFocal(given);
        EXPECT_EQ(camera->getFocal(), given);
    }
    camera->setFocal(kNotANumber);
    EXPECT_TRUE(std::isnan(camera->getFocal()));
}

TEST(Camera, ACameraThatOutlivesItsDocumentKeepsAnyFocal)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    document.die();
    camera->setFocal(200.0);
    EXPECT_EQ(camera->getFocal(), 200.0);
}

TEST(Camera, AnUnknownTargetTypeIsAFixedPoint)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    for (const std::int32_t given : {7, 2, -1, 0}) {
        camera->setTargetType(1);
        camera->setTargetType(given);
        EXPECT_EQ(camera->getTargetType(), 0) << given;
    }
    EXPECT_TRUE(document.takeMessages().empty());
}
