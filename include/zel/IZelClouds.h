#pragma once

#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// The clouds of a sky, part of a heliodon or an environment and good as long as that.
///
/// Values are stored as they come, and what they mean is the renderer's business. The file form is
/// the child "Clouds"; in it sizes and seeds are required.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelClouds : public IZelXML {
public:
    /// False in new clouds.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 0.6 in new clouds.
    virtual double getCumulusSize() const = 0;
    virtual void setCumulusSize(double size) = 0;
    /// 0 in new clouds, as the other seeds.
    virtual std::int32_t getCumulusSeed() const = 0;
    virtual void setCumulusSeed(std::int32_t seed) = 0;
    /// 0.5 in new clouds.
    virtual double getCirrusSize() const = 0;
    virtual void setCirrusSize(double size) = 0;
    /// 0 in new clouds.
    virtual std::int32_t getCirrusSeed() const = 0;
    virtual void setCirrusSeed(std::int32_t seed) = 0;
    /// 0.2 in new clouds.
    virtual double getStratusSize() const = 0;
    virtual void setStratusSize(double size) = 0;
    /// 0 in new clouds.
    virtual std::int32_t getStratusSeed() const = 0;
    virtual void setStratusSeed(std::int32_t seed) = 0;
    /// 0.4 in new clouds.
    virtual double getCirrocumulusSize() const = 0;
    virtual void setCirrocumulusSize(double size) = 0;
    /// 0 in new clouds.
    virtual std::int32_t getCirrocumulusSeed() const = 0;
    virtual void setCirrocumulusSeed(std::int32_t seed) = 0;
    /// False in new clouds.
    virtual bool getActiveWind() const = 0;
    virtual void setActiveWind(bool active) = 0;
    /// 20.0 in new clouds.
    virtual double getWindSpeed() const = 0;
    virtual void setWindSpeed(double speed) = 0;
    /// 0.0 in new clouds.
    virtual double getWindDirection() const = 0;
    virtual void setWindDirection(double direction) = 0;
    /// 0.0 in new clouds; lives in memory only, no file holds it.
    virtual double getWindOffset() const = 0;
    virtual void setWindOffset(double offset) = 0;

protected:
    ~IZelClouds() = default;
};

} // namespace OvZel
