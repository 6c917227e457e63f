#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The plane of light that a view may show. Part of a view information. Every value is stored as
/// it comes.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelLaser : public IZelXML {
public:
    /// False in a new one.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// Direction of the plane, (0, 0, 1) in a new one.
    virtual const CZelPoint& getNormal() const = 0;
    virtual void setNormal(const CZelPoint& normal) = 0;
    /// Point of the plane, the origin in a new one.
    virtual const CZelPoint& getReference() const = 0;
    virtual void setReference(const CZelPoint& point) = 0;
    /// 0.0 in a new one.
    virtual double getDistance() const = 0;
    virtual void setDistance(double distance) = 0;

protected:
    ~IZelLaser() = default;
};

} // namespace OvZel
