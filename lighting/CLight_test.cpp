#include "lighting/CLight.h"

#include "core/TComObjectMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr CZelUUID kId{"00112233445566778899AABBCCDDEEFF"};
constexpr CZelUUID kOtherId{"FFEEDDCCBBAA99887766554433221100"};

} // namespace

TEST(Light, EveryValueIsStored)
{
    using I = IZelLight;
    const TZelComPtr<CLight> light(new CLight(nullptr));
    expectAccessors<I>(*light.get(), {ACCESS(I, Type, 2),
                                      ACCESS(I, Active, false),
                                      ACCESS(I, Color, CZelColor::rgb(1, 2, 3)),
                                      ACCESS(I, Power, 2.0),
                                      ACCESS(I, DistanceNear, -3.0),
                                      ACCESS(I, DistanceFar, -4.0),
                                      ACCESS(I, Position, (CZelPoint{1, 2, 3})),
                                      ACCESS(I, Target, (CZelPoint{4, 5, 6})),
                                      ACCESS(I, ConeAngle, 7.0),
                                      ACCESS(I, Sharpness, 0.8),
                                      ACCESS(I, ShadowType, 2),
                                      ACCESS(I, ShadowPower, 0.9),
                                      ACCESS(I, MapSize, 10),
                                      ACCESS(I, Bias, 0.11),
                                      ACCESS(I, GlobalIllumination, true),
                                      ACCESS(I, GlobalIlluminationPower, -12.0),
                                      ACCESS(I, GlobalIlluminationQuality, -13),
                                      ACCESS(I, Locked, true),
                                      ACCESS(I, Radiosity, false),
                                      ACCESS(I, TargetType, 1),
                                      ACCESS(I, ObjectId, kId),
                                      ACCESS(I, IES, kOtherId),
                                      ACCESS(I, IESUrl, "lamp.ies")});
}

TEST(Light, NumbersOutOfRangeAreClippedInSilence)
{
    using I = IZelLight;
    constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
    struct {
        double (I::*get)() const;
        void (I::*set)(double);
        double given, kept;
    } cases[] = {
        {&I::getPower, &I::setPower, 0.5, 1.0},
        {&I::getPower, &I::setPower, 1.0, 1.0},
        {&I::getPower, &I::setPower, 1'000'000.0, 1'000'000.0},
        {&I::getPower, &I::setPower, 2'000'000.0, 1'000'000.0},
        {&I::getPower, &I::setPower, kNoNumber, 1.0},
        {&I::getConeAngle, &I::setConeAngle, -1.0, 0.0},
        {&I::getConeAngle, &I::setConeAngle, 0.0, 0.0},
        {&I::getConeAngle, &I::setConeAngle, 360.0, 360.0},
        {&I::getConeAngle, &I::setConeAngle, 361.0, 360.0},
        {&I::getSharpness, &I::setSharpness, -0.1, 0.0},
        {&I::getSharpness, &I::setSharpness, 1.0, 1.0},
        {&I::getSharpness, &I::setSharpness, 1.1, 1.0},
        {&I::getShadowPower, &I::setShadowPower, -0.1, 0.0},
        {&I::getShadowPower, &I::setShadowPower, 1.0, 1.0},
        {&I::getShadowPower, &I::setShadowPower, 1.1, 1.0},
        {&I::getBias, &I::setBias, -0.1, 0.0},
        {&I::getBias, &I::setBias, 1.0, 1.0},
        {&I::getBias, &I::setBias, 1.1, 1.0},
        {&I::getBias, &I::setBias, kNoNumber, 0.0},
        {&I::getDistanceNear, &I::setDistanceNear, -1e300, -1e300},
        {&I::getDistanceFar, &I::setDistanceFar, 1e300, 1e300},
        {&I::getGlobalIlluminationPower, &I::setGlobalIlluminationPower, -1e300, -1e300},
    };
    CTestDocument document;
    const TZelComPtr<CLight> light(new CLight(document.ref()));
    for (const auto& each : cases) {
        (*light.get().*each.set)(each.given);
        EXPECT_EQ((*light.get().*each.get)(), each.kept) << "given " << each.given;
    }
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Light, WholeNumbersOutOfRange)
{
    using I = IZelLight;
    constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
    struct {
        std::int32_t (I::*get)() const;
        void (I::*set)(std::int32_t);
        std::int32_t given, kept;
    } cases[] = {
        {&I::getMapSize, &I::setMapSize, -1, 0},
        {&I::getMapSize, &I::setMapSize, 13, 13},
        {&I::getMapSize, &I::setMapSize, 14, 13},
        {&I::getTargetType, &I::setTargetType, 1, 1},
        {&I::getTargetType, &I::setTargetType, 2, 0},
        {&I::getTargetType, &I::setTargetType, -1, 0},
        {&I::getType, &I::setType, kLowest, kLowest}, // no limit
        {&I::getShadowType, &I::setShadowType, 99, 99},
    };
    CTestDocument document;
    for (const auto& each : cases) {
        const TZelComPtr<CLight> light(new CLight(document.ref()));
        light->setTargetType(1);
        light->setMapSize(5);
        (*light.get().*each.set)(each.given);
        EXPECT_EQ((*light.get().*each.get)(), each.kept) << "given " << each.given;
    }
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

TEST(Light, ANullUrlIsTheEmptyText)
{
    const TZelComPtr<CLight> light(new CLight(nullptr));
    light->setIESUrl("lamp.ies");
    light->setIESUrl(nullptr);
    EXPECT_STREQ(light->getIESUrl(), "");
}

TEST(Light, PartsAndGroupsAreTheSameThroughBothAccessors)
{
    const TZelComPtr<CLight> light(new CLight(nullptr));
    const IZelLight& constant = *light.get();
    EXPECT_EQ(light->getLensFlare(), constant.getLensFlare());
    EXPECT_EQ(light->getLightCone(), constant.getLightCone());
    EXPECT_EQ(light->getLightsGroups(), constant.getLightsGroups());
    EXPECT_EQ(light->getLightsGroups()->getNbObjects(), 0);
    *light->getLightsGroups()->newZelObject(-1) = kId;
    EXPECT_EQ(*light->getLightsGroups()->getZelObject(0), kId);
}

TEST(Light, AListOfGroupsThatAClientKeepsOutlivesTheLight)
{
    CTestDocument document;
    TZelComPtr<TZelObjectMgr<CZelUUID>> groups;
    {
        const TZelComPtr<CLight> light(new CLight(document.ref()));
        groups = TZelComPtr<TZelObjectMgr<CZelUUID>>(light->getLightsGroups());
    }
    *groups->newZelObject(-1) = kId;
    EXPECT_EQ(groups->getNbObjects(), 1);
    EXPECT_EQ(groups->getObjectLink()->getOwnerLink(), nullptr);
}

TEST(Light, AManagerMakesLightsWithTheirIdentifierAndDocument)
{
    CTestDocument document;
    using CLights = TComObjectMgr<CLight, IZelLight>;
    const TZelComPtr<CLights> lights(new CLights(document.ref()));
    EXPECT_EQ(*lights->getObjectIID(), IZelLight::sIID);
    IZelLight* light = lights->newZelObject(-1);
    ASSERT_NE(light, nullptr);
    EXPECT_EQ(light->getObjectLink()->getMgrRef(), document.ref());
    EXPECT_NE(*light->getBasicData()->getId(), CZelUUID());
    EXPECT_STREQ(light->getBasicData()->getName(), "");
}
