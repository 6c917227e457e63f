#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// What a view shows sharp. Part of a view information. Every value is stored as it comes; the
/// meaning of the inverse values is the renderer's.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelDepthOfField : public IZelXML {
public:
    /// False in a new one.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 0 from the point (in a new one), 1 from the target, 2 from infinity, 3 from the distance.
    /// Any other number makes a save fail.
    virtual std::int32_t getType() const = 0;
    virtual void setType(std::int32_t type) = 0;
    /// The origin in a new one.
    virtual const CZelPoint& getClearnessPoint() const = 0;
    virtual void setClearnessPoint(const CZelPoint& point) = 0;
    /// Both 0.0 in a new one.
    virtual double getClearnessDistanceInverse() const = 0;
    virtual void setClearnessDistanceInverse(double value) = 0;
    /// 0.0 in a new one.
    virtual double getClearnessSizeInverse() const = 0;
    virtual void setClearnessSizeInverse(double value) = 0;

protected:
    ~IZelDepthOfField() = default;
};

} // namespace OvZel
