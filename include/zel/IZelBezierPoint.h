#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// A point of a 3D path with its two control points. Made and owned by its path; no value passes
/// through the read transform.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelBezierPoint : public IZelXML {
public:
    static constexpr CZelUUID sIID{"EA9FA51A5E0648098C396B2DBC3DCD7B"};

    /// The origin in a new point.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& point) = 0;
    /// (-100, 0, 0) in a new point.
    virtual const CZelPoint& getCPBefore() const = 0;
    virtual void setCPBefore(const CZelPoint& point) = 0;
    /// (100, 0, 0) in a new point.
    virtual const CZelPoint& getCPAfter() const = 0;
    virtual void setCPAfter(const CZelPoint& point) = 0;
    /// Whether the two control points move together; true in a new point.
    virtual bool getAreLocked() const = 0;
    virtual void setAreLocked(bool locked) = 0;

protected:
    ~IZelBezierPoint() = default;
};

} // namespace OvZel
