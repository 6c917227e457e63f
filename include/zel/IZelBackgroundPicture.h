#pragma once

#include <zel/CZelColor.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// The picture or gradient behind the scene of an environment or a view.
///
/// Nothing is clipped. Part of its owner: pointers to it are good as long as the owner lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelBackgroundPicture : public IZelXML {
public:
    /// What is shown: 0 nothing, 1 a gradient, 2 a flat picture, 3 a film around the scene, 4 a
    /// gradient of four colours, 5 a high dynamic range picture. 0 in a new object. A save of any
    /// other number fails.
    virtual std::int32_t getType() const = 0;
    virtual void setType(std::int32_t type) = 0;
    /// Where the picture lies, empty in a new object; good until the next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// Whether the picture surrounds the scene, false in a new object.
    virtual bool get3D() const = 0;
    virtual void set3D(bool is3D) = 0;
    /// The colours of a gradient: white, the fourth black in a new object.
    virtual CZelColor getFirstColor() const = 0;
    virtual void setFirstColor(const CZelColor& color) = 0;
    /// White in a new object.
    virtual CZelColor getSecondColor() const = 0;
    virtual void setSecondColor(const CZelColor& color) = 0;
    /// White in a new object.
    virtual CZelColor getThirdColor() const = 0;
    virtual void setThirdColor(const CZelColor& color) = 0;
    /// Black in a new object.
    virtual CZelColor getFourthColor() const = 0;
    virtual void setFourthColor(const CZelColor& color) = 0;
    /// Place of the picture, 0.0 in a new object.
    virtual double getHOffset() const = 0;
    virtual void setHOffset(double offset) = 0;
    /// 0.0 in a new object.
    virtual double getVOffset() const = 0;
    virtual void setVOffset(double offset) = 0;
    /// Whether the picture lights the scene, false in a new object.
    virtual bool getLightingFlag() const = 0;
    virtual void setLightingFlag(bool lights) = 0;
    /// 0.5 in a new object.
    virtual double getLightingIntensity() const = 0;
    virtual void setLightingIntensity(double intensity) = 0;
    /// 0.5 in a new object.
    virtual double getBackgroundIntensity() const = 0;
    virtual void setBackgroundIntensity(double intensity) = 0;
    /// 0.0 in a new object.
    virtual double getHorizontalRoll() const = 0;
    virtual void setHorizontalRoll(double roll) = 0;
    /// Size of the picture, 1.0 in a new object.
    virtual double getWidth() const = 0;
    virtual void setWidth(double width) = 0;
    /// 1.0 in a new object.
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    /// True in a new object.
    virtual bool getKeepProportions() const = 0;
    virtual void setKeepProportions(bool keep) = 0;

protected:
    ~IZelBackgroundPicture() = default;
};

} // namespace OvZel
