#include "views/CAnimation.h"

#include "core/TObject2Mgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <cmath>
#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
const std::vector<std::string> kNoMessages;

} // namespace

TEST(CameraPath, ANewOne)
{
    CAnimation path(nullptr);
    EXPECT_STREQ(path.getName(), "Sequence 0");
    EXPECT_FALSE(path.getViewFlag());
    EXPECT_TRUE(path.getActive());
    EXPECT_EQ(path.getDuration(), 4.0);
    EXPECT_EQ(path.getNbXImage(), 0);
    EXPECT_FALSE(path.getSpeedOn());
    EXPECT_EQ(path.getSpeed(), 0.0);
    EXPECT_TRUE(path.getPathClosed());
    EXPECT_EQ(path.getPoints()->getNbObjects(), 0);
    EXPECT_EQ(path.getKeys()->getNbObjects(), 0);
    EXPECT_EQ(path.getCurrentTime(), 0.0);
    const IZelCameraPath& constant = path;
    EXPECT_EQ(constant.getPoints(), path.getPoints());
    EXPECT_EQ(constant.getKeys(), path.getKeys());
    EXPECT_EQ(constant.getViewInfo(), path.getViewInfo());
}

TEST(CameraPath, StoresWhatComesWithoutADocument)
{
    using I = IZelCameraPath;
    CTestDocument document;
    CAnimation orphan(document.ref()), alone(nullptr);
    document.die();
    for (CAnimation* path : {&orphan, &alone}) {
        expectAccessors<I>(*path, {ACCESS(I, Name, "Walk"), ACCESS(I, ViewFlag, true),
                                   ACCESS(I, Active, false), ACCESS(I, Duration, -1.0),
                                   ACCESS(I, NbXImage, -2), ACCESS(I, SpeedOn, true),
                                   ACCESS(I, Speed, -3.0), ACCESS(I, PathClosed, false),
                                   ACCESS(I, CurrentTime, -4.0)});
        path->setDuration(kNotANumber);
        EXPECT_TRUE(std::isnan(path->getDuration()));
        path->setName(nullptr);
        EXPECT_STREQ(path->getName(), "");
    }
}

TEST(CameraPath, TheDurationIsClippedInADocument)
{
    const std::vector<std::string> clipped = {
        "Method setDuration has clipped a value out of range."};
    struct {
        double given, kept;
        bool warns;
    } const cases[] = {{-1, 0, true}, {-kInfinity, 0, true}, {kNotANumber, 0, true},
                       {0, 0, false}, {1e300, 1e300, false}, {kInfinity, kInfinity, false}};
    CTestDocument document;
    CAnimation path(document.ref());
    for (const auto& [given, kept, warns] : cases) {
        path.setDuration(given);
        EXPECT_EQ(path.getDuration(), kept) << given;
        EXPECT_EQ(document.takeMessages(), warns ? clipped : kNoMessages) << given;
    }
}

TEST(CameraPath, TheNumberOfImagesIsClippedInADocument)
{
    const std::vector<std::string> clipped = {
        "Method setNbXImage has clipped a value out of range."};
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    struct {
        std::int32_t given, kept;
        bool warns;
    } const cases[] = {{-1, 0, true}, {kLeast, 0, true}, {0, 0, false}, {7, 7, false}};
    CTestDocument document;
    CAnimation path(document.ref());
    for (const auto& [given, kept, warns] : cases) {
        path.setNbXImage(given);
        EXPECT_EQ(path.getNbXImage(), kept) << given;
        EXPECT_EQ(document.takeMessages(), warns ? clipped : kNoMessages) << given;
    }
}

TEST(CameraPath, ItsViewInformationReachesTheDocument)
{
    CTestDocument document;
    using CPaths = TObject2Mgr<CAnimation, IZelCameraPath>;
    TZelComPtr paths(new CPaths(document.ref()));
    TZelComPtr info(paths->newZelObject(-1)->getViewInfo());
    paths.reset();
    EXPECT_EQ(info->getObjectLink()->getMgrRef(), document.ref());
}

TEST(CamKey, StoresWhatIsInRange)
{
    using I = IZelCamKey;
    CCamKey key;
    expectAccessors<I>(key, {ACCESS(I, Pitch, 360.0), ACCESS(I, Focal, -1.0), ACCESS(I, KeyType, 9),
                             ACCESS(I, FadingDuration, -2), ACCESS(I, FadingImages, -3),
                             ACCESS(I, HorizontalAngle, -4.0), ACCESS(I, VerticalAngle, -5.0),
                             ACCESS(I, Anticipation, 1.0), ACCESS(I, BezierSection, 6),
                             ACCESS(I, BezierT, 1.0), ACCESS(I, BezierTransition, 7),
                             ACCESS(I, BezierTransitionT, 0.5),
                             ACCESS(I, Target, (CZelPoint{1, 2, 3}))});
}

TEST(CamKey, ANewOneIsZero)
{
    const CCamKey key;
    for (const double value :
         {key.getPitch(), key.getFocal(), key.getHorizontalAngle(), key.getVerticalAngle(),
          key.getAnticipation(), key.getBezierT(), key.getBezierTransitionT()})
        EXPECT_EQ(value, 0.0);
    for (const std::int32_t value :
         {key.getKeyType(), key.getFadingDuration(), key.getFadingImages(), key.getBezierSection(),
          key.getBezierTransition()})
        EXPECT_EQ(value, 0);
    EXPECT_TRUE(isSame(key.getTarget(), CZelPoint{}));
}

TEST(CamKey, ClipsInSilence)
{
    struct {
        const char* name;
        double (IZelCamKey::*get)() const;
        void (IZelCamKey::*set)(double);
        double highest;
    } const values[] = {
        {"pitch", &IZelCamKey::getPitch, &IZelCamKey::setPitch, 360.0},
        {"anticipation", &IZelCamKey::getAnticipation, &IZelCamKey::setAnticipation, 1.0},
        {"t", &IZelCamKey::getBezierT, &IZelCamKey::setBezierT, 1.0},
        {"transition t", &IZelCamKey::getBezierTransitionT, &IZelCamKey::setBezierTransitionT, 1.0},
    };
    CCamKey key;
    for (const auto& [name, get, set, highest] : values) {
        struct {
            double given, kept;
        } const cases[] = {
            {0.5, 0.5}, {-0.001, 0.0},        {highest, highest}, {highest + 0.001, highest},
            {0.0, 0.0}, {kInfinity, highest}, {kNotANumber, 0.0}};
        for (const auto& [given, kept] : cases) {
            (key.*set)(given);
            EXPECT_EQ((key.*get)(), kept) << name << " " << given;
        }
    }
    key.setBezierSection(5);
    key.setBezierSection(-1);
    EXPECT_EQ(key.getBezierSection(), 0);
    key.setBezierTransition(5);
    key.setBezierTransition(-1);
    EXPECT_EQ(key.getBezierTransition(), 0);
}
