#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The haze of a view, part of its view and good as long as that.
///
/// Where a range is given, a value out of it stores the limit, and one that is not a number the
/// lowest value; in a document the warning "Method NAME has clipped a value out of range." goes out
/// with the name of the setter. Values in a file are clipped in the same way. The file form is the
/// child "Atmosphere"; in it the colour and all numbers are required.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelAtmosphere : public IZelXML {
public:
    /// False in a new atmosphere.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 221, 221, 221 in a new atmosphere.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// 0.0 to 1.0, 0.6 in a new atmosphere, as the other densities.
    virtual double getHighDensity() const = 0;
    virtual void setHighDensity(double density) = 0;
    /// 0.0 to 1.0, 0.6 in a new atmosphere.
    virtual double getMediumDensity() const = 0;
    virtual void setMediumDensity(double density) = 0;
    /// 0.0 to 1.0, 0.6 in a new atmosphere.
    virtual double getLowDensity() const = 0;
    virtual void setLowDensity(double density) = 0;
    /// At least 0.0, 2.0 in a new atmosphere.
    virtual double getScale() const = 0;
    virtual void setScale(double scale) = 0;
    /// Any number, 0.0 in a new atmosphere.
    virtual double getMinDistance() const = 0;
    virtual void setMinDistance(double distance) = 0;
    /// At least 0.0, 0.0 in a new atmosphere. The warning names setScale.
    virtual double getMaxDistance() const = 0;
    virtual void setMaxDistance(double distance) = 0;
    /// At least 0.0, 0.0 in a new atmosphere.
    virtual double getNoise() const = 0;
    virtual void setNoise(double noise) = 0;
    /// True in a new atmosphere.
    virtual bool getUseDefault() const = 0;
    virtual void setUseDefault(bool useDefault) = 0;

protected:
    ~IZelAtmosphere() = default;
};

} // namespace OvZel
