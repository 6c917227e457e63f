#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// A key of a camera path. Made and owned by it. Where a value has limits it is brought between
/// them, and nothing warns. The meaning of the Bezier values is the client's.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelCamKey {
public:
    static constexpr CZelUUID sIID{"D399F769F7E04435A77988B4E47ED30A"};

    /// 0.0 to 360.0, 0.0 in a new key; what is not a number becomes 0.0.
    virtual double getPitch() const = 0;
    virtual void setPitch(double pitch) = 0;
    /// 0.0 in a new key.
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    /// 0 timing (in a new key), 1 path, 2 local, 3 global, 4 target. With any other number a save
    /// fails.
    virtual std::int32_t getKeyType() const = 0;
    virtual void setKeyType(std::int32_t type) = 0;
    /// 0 in a new key.
    virtual std::int32_t getFadingDuration() const = 0;
    virtual void setFadingDuration(std::int32_t duration) = 0;
    /// 0 in a new key.
    virtual std::int32_t getFadingImages() const = 0;
    virtual void setFadingImages(std::int32_t nbImages) = 0;
    /// 0.0 in a new key.
    virtual double getHorizontalAngle() const = 0;
    virtual void setHorizontalAngle(double angle) = 0;
    /// 0.0 in a new key.
    virtual double getVerticalAngle() const = 0;
    virtual void setVerticalAngle(double angle) = 0;
    /// 0.0 to 1.0, 0.0 in a new key; what is not a number becomes 0.0.
    virtual double getAnticipation() const = 0;
    virtual void setAnticipation(double anticipation) = 0;
    /// 0 in a new key, and for a number below it.
    virtual std::int32_t getBezierSection() const = 0;
    virtual void setBezierSection(std::int32_t section) = 0;
    /// 0.0 to 1.0, 0.0 in a new key; what is not a number becomes 0.0.
    virtual double getBezierT() const = 0;
    virtual void setBezierT(double t) = 0;
    /// 0 in a new key, and for a number below it.
    virtual std::int32_t getBezierTransition() const = 0;
    virtual void setBezierTransition(std::int32_t transition) = 0;
    /// 0.0 to 1.0, 0.0 in a new key; what is not a number becomes 0.0.
    virtual double getBezierTransitionT() const = 0;
    virtual void setBezierTransitionT(double t) = 0;
    /// The origin in a new key.
    virtual const CZelPoint& getTarget() const = 0;
    virtual void setTarget(const CZelPoint& point) = 0;

protected:
    ~IZelCamKey() = default;
};

} // namespace OvZel
