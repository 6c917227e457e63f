#include "environment/CAtmosphere.h"

namespace OvZel {

void CAtmosphere::store(double& field, const CRange& range, double value, const char* text)
{
    field = range.clip(value);
    if (field != value)
        warn(text);
}

void CAtmosphere::setHighDensity(double density)
{
    store(mHighDensity, kDensity, density,
          "Method setHighDensity has clipped a value out of range.");
}

void CAtmosphere::setMediumDensity(double density)
{
    store(mMediumDensity, kDensity, density,
          "Method setMediumDensity has clipped a value out of range.");
}

void CAtmosphere::setLowDensity(double density)
{
    store(mLowDensity, kDensity, density, "Method setLowDensity has clipped a value out of range.");
}

void CAtmosphere::setScale(double scale)
{
    store(mScale, kNotNegative, scale, "Method setScale has clipped a value out of range.");
}

void CAtmosphere::setMaxDistance(double distance)
{
    // Clients know the message with the name of the other setter (sic).
    store(mMaxDistance, kNotNegative, distance,
          "Method setScale has clipped a value out of range.");
}

void CAtmosphere::setNoise(double noise)
{
    store(mNoise, kNotNegative, noise, "Method setNoise has clipped a value out of range.");
}

} // namespace OvZel
