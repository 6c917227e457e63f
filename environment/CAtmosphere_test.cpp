#include "environment/CAtmosphere.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"

#include <limits>

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

struct CClip {
    double (IZelAtmosphere::*get)() const;
    void (IZelAtmosphere::*set)(double);
    double given, kept;
    const char* warning; ///< null for a value in range
};

std::vector<CClip> clips()
{
    using I = IZelAtmosphere;
    const char* high = "Method setHighDensity has clipped a value out of range.";
    const char* medium = "Method setMediumDensity has clipped a value out of range.";
    const char* low = "Method setLowDensity has clipped a value out of range.";
    const char* scale = "Method setScale has clipped a value out of range.";
    const char* noise = "Method setNoise has clipped a value out of range.";
    return {
        {&I::getHighDensity, &I::setHighDensity, 1.5, 1.0, high},
        {&I::getHighDensity, &I::setHighDensity, -0.1, 0.0, high},
        {&I::getHighDensity, &I::setHighDensity, kNoNumber, 0.0, high},
        {&I::getHighDensity, &I::setHighDensity, 0.0, 0.0, nullptr},
        {&I::getHighDensity, &I::setHighDensity, 1.0, 1.0, nullptr},
        {&I::getMediumDensity, &I::setMediumDensity, 1.5, 1.0, medium},
        {&I::getMediumDensity, &I::setMediumDensity, -0.1, 0.0, medium},
        {&I::getMediumDensity, &I::setMediumDensity, 1.0, 1.0, nullptr},
        {&I::getLowDensity, &I::setLowDensity, 1.5, 1.0, low},
        {&I::getLowDensity, &I::setLowDensity, -0.1, 0.0, low},
        {&I::getLowDensity, &I::setLowDensity, 0.0, 0.0, nullptr},
        {&I::getScale, &I::setScale, -1.0, 0.0, scale},
        {&I::getScale, &I::setScale, kNoNumber, 0.0, scale},
        {&I::getScale, &I::setScale, 1e300, 1e300, nullptr},
        {&I::getScale, &I::setScale, kInfinity, kInfinity, nullptr},
        {&I::getMinDistance, &I::setMinDistance, -1.0, -1.0, nullptr},
        {&I::getMaxDistance, &I::setMaxDistance, -1.0, 0.0, scale}, // the words of setScale
        {&I::getMaxDistance, &I::setMaxDistance, 1e300, 1e300, nullptr},
        {&I::getNoise, &I::setNoise, -1.0, 0.0, noise},
        {&I::getNoise, &I::setNoise, 0.0, 0.0, nullptr},
        {&I::getNoise, &I::setNoise, 1e300, 1e300, nullptr},
    };
}

} // namespace

TEST(Atmosphere, WhatIsClippedWarns)
{
    CTestDocument document;
    for (const CClip& each : clips()) {
        CAtmosphere object(document.ref());
        IZelAtmosphere& atmosphere = object;
        (atmosphere.*each.set)(each.given);
        EXPECT_EQ((atmosphere.*each.get)(), each.kept) << each.given;
        std::vector<std::string> expected;
        if (each.warning != nullptr)
            expected.emplace_back(each.warning);
        EXPECT_EQ(document.takeMessages(), expected) << each.given;
    }
}

TEST(Atmosphere, WithoutADocumentItClipsInSilence)
{
    for (const CClip& each : clips()) {
        CAtmosphere object(nullptr);
        IZelAtmosphere& atmosphere = object;
        EXPECT_NO_THROW((atmosphere.*each.set)(each.given));
        EXPECT_EQ((atmosphere.*each.get)(), each.kept) << each.given;
    }
}

TEST(Atmosphere, EveryValueIsStored)
{
    CAtmosphere atmosphere(nullptr);
    expectAccessors<IZelAtmosphere>(
        atmosphere,
        {ACCESS(IZelAtmosphere, Used, true), ACCESS(IZelAtmosphere, Color, CZelColor::rgb(1, 2, 3)),
         ACCESS(IZelAtmosphere, HighDensity, 0.1), ACCESS(IZelAtmosphere, MediumDensity, 0.2),
         ACCESS(IZelAtmosphere, LowDensity, 0.3), ACCESS(IZelAtmosphere, Scale, 4.0),
         ACCESS(IZelAtmosphere, MinDistance, 5.0), ACCESS(IZelAtmosphere, MaxDistance, 6.0),
         ACCESS(IZelAtmosphere, Noise, 7.0), ACCESS(IZelAtmosphere, UseDefault, false)});
}
