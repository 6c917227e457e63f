#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The box outside which a view shows nothing. Part of a view information. Everything is zero or
/// false in a new one.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelClippingBox : public IZelXML {
public:
    /// The lowest corner.
    virtual const CZelPoint& getMinimum() const = 0;
    virtual void setMinimum(const CZelPoint& point) = 0;
    /// Setting it also puts the pivot 1.0 above it: the pivot's z becomes the maximum's plus 1,
    /// its x and y stay.
    virtual const CZelPoint& getMaximum() const = 0;
    virtual void setMaximum(const CZelPoint& point) = 0;
    /// Whether the box itself is shown.
    virtual bool getVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// Whether the box is applied.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// A point above the box, which setMaximum puts there.
    virtual const CZelPoint& getPivot() const = 0;
    virtual void setPivot(const CZelPoint& point) = 0;
    /// Stored only.
    virtual double getAngle() const = 0;
    virtual void setAngle(double angle) = 0;

protected:
    ~IZelClippingBox() = default;
};

} // namespace OvZel
