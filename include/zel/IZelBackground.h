#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// The single background of a view, older than the background picture. It is not part of a saved
/// view: a client keeps it with putInXML and initWithXML.
///
/// Only the line power is clipped. Part of its owner: pointers to it are good as long as the owner
/// lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelBackground : public IZelXML {
public:
    /// White in a new object.
    virtual CZelColor getColor() const = 0;
    virtual void setColor(const CZelColor& color) = 0;
    /// 0, 100, 255 in a new object.
    virtual CZelColor getSecondColor() const = 0;
    virtual void setSecondColor(const CZelColor& color) = 0;
    /// 1.296153, 1.0, 0.0 in a new object. Reading takes it through the vector transform of the
    /// document.
    virtual const CZelPoint& getUpDirection() const = 0;
    virtual void setUpDirection(const CZelPoint& direction) = 0;
    /// 1.0 in a new object.
    virtual double getLinePower() const = 0;
    /// In a document a value below 0.0 or above 100.0 becomes that limit, with the warning "Method
    /// setLinePower has clipped a value out of range."; a value that is not a number counts as
    /// below. Without a document, or behind its end, any value is kept.
    virtual void setLinePower(double power) = 0;
    /// Where the picture lies, empty in a new object; good until the next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// 0 no picture, 1 stretched, 2 around the scene, 3 as a pattern, 4 as a cube of six pictures.
    /// 0 in a new object. A save of any other number fails.
    virtual std::int32_t getImageType() const = 0;
    virtual void setImageType(std::int32_t type) = 0;
    /// 0 no colour, 1 one colour, 2 graduated, 3 graduated with a line. 2 in a new object. A save
    /// of any other number fails.
    virtual std::int32_t getColorType() const = 0;
    virtual void setColorType(std::int32_t type) = 0;
    /// True in a new object.
    virtual bool getUseDefault() const = 0;
    virtual void setUseDefault(bool useDefault) = 0;
    /// 0.0 in a new object.
    virtual double getOrigin() const = 0;
    virtual void setOrigin(double origin) = 0;
    /// 0.0 in a new object.
    virtual double getDirectionAngle() const = 0;
    virtual void setDirectionAngle(double angle) = 0;

protected:
    ~IZelBackground() = default;
};

} // namespace OvZel
