#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelViewBasic.h>

#include <cstdint>

namespace OvZel {

/// A turntable: pictures from a camera that moves over a sphere around a centre, in steps of two
/// angles. A new one is named "Vue objet 1". Nothing is computed here, and nothing warns.
///
/// It has no identifier of its own in the file: each load gives it a new one, and that of its view
/// information persists.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelViewObject : public IZelViewBasic {
public:
    static constexpr CZelUUID sIID{"9201CC60367947AAA12F1B45DC526B0D"};

    /// 2 in a new one; any number.
    virtual std::int32_t getViewFlags() const = 0;
    virtual void setViewFlags(std::int32_t flags) = 0;
    /// In degrees, 50.0 in a new one. Below 1.0 or above 180.0 the limit is stored, in a document
    /// or not.
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    /// (50, 50, 50) in a new one.
    virtual const CZelPoint& getCenter() const = 0;
    virtual void setCenter(const CZelPoint& point) = 0;
    /// 110.0 in a new one; below 0.0 it becomes 0.0.
    virtual double getRadius() const = 0;
    virtual void setRadius(double radius) = 0;
    /// In degrees: 360 in a new one, below 0 or above 360 the limit is stored.
    virtual std::int32_t getHorizontalAngle() const = 0;
    virtual void setHorizontalAngle(std::int32_t angle) = 0;
    /// In degrees: 180 in a new one, below 0 or above 180 the limit is stored.
    virtual std::int32_t getVerticalAngle() const = 0;
    virtual void setVerticalAngle(std::int32_t angle) = 0;
    /// Both steps are in degrees and 10 in a new one; 0 becomes 1.
    virtual std::uint32_t getHorizontalStep() const = 0;
    virtual void setHorizontalStep(std::uint32_t step) = 0;
    /// As getHorizontalStep.
    virtual std::uint32_t getVerticalStep() const = 0;
    virtual void setVerticalStep(std::uint32_t step) = 0;
    /// In degrees: 0 in a new one, below 0 or above 360 the limit is stored.
    virtual std::int32_t getHorizontalShift() const = 0;
    virtual void setHorizontalShift(std::int32_t shift) = 0;
    /// In degrees: 0 in a new one; any number, also a negative one.
    virtual std::int32_t getVerticalShift() const = 0;
    virtual void setVerticalShift(std::int32_t shift) = 0;
    /// In degrees, 270.0 in a new one; any number.
    virtual double getHorizontalStart() const = 0;
    virtual void setHorizontalStart(double start) = 0;
    /// In degrees, 0.0 in a new one; any number.
    virtual double getVerticalStart() const = 0;
    virtual void setVerticalStart(double start) = 0;
    /// In degrees, -90 in a new one; any number.
    virtual std::int32_t getOriginAngle() const = 0;
    virtual void setOriginAngle(std::int32_t angle) = 0;

protected:
    ~IZelViewObject() override = default;
};

} // namespace OvZel
