#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelXML.h>

namespace OvZel {

/// The picture in front of the scene of an environment or a view.
///
/// Nothing is clipped. Part of its owner: pointers to it are good as long as the owner lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelForeground : public IZelXML {
public:
    /// Where the picture lies, empty in a new object; good until the next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// 0.0 in a new object.
    virtual double getPositionX() const = 0;
    virtual void setPositionX(double x) = 0;
    /// 0.0 in a new object.
    virtual double getPositionY() const = 0;
    virtual void setPositionY(double y) = 0;
    /// 1.0 in a new object.
    virtual double getSizeX() const = 0;
    virtual void setSizeX(double size) = 0;
    /// 1.0 in a new object.
    virtual double getSizeY() const = 0;
    virtual void setSizeY(double size) = 0;
    /// The identifier of an image, null in a new object. A file that the library wrote carries it,
    /// yet a load does not take it: a loaded foreground has the null identifier.
    virtual const CZelUUID& getImageId() const = 0;
    virtual void setImageId(const CZelUUID& id) = 0;
    /// 0.5 in a new object.
    virtual double getIntensity() const = 0;
    virtual void setIntensity(double intensity) = 0;
    /// True in a new object.
    virtual bool getKeepProportions() const = 0;
    virtual void setKeepProportions(bool keep) = 0;

protected:
    ~IZelForeground() = default;
};

} // namespace OvZel
