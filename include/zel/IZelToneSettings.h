#pragma once

#include <zel/IZelXML.h>

namespace OvZel {

/// How light and dark tones of a view are shown.
///
/// Nothing is clipped. Part of its owner: pointers to it are good as long as the owner lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelToneSettings : public IZelXML {
public:
    /// 0.0 in a new object.
    virtual double getLightsTones() const = 0;
    virtual void setLightsTones(double tones) = 0;
    /// 0.0 in a new object.
    virtual double getDarkTones() const = 0;
    virtual void setDarkTones(double tones) = 0;

protected:
    ~IZelToneSettings() = default;
};

} // namespace OvZel
