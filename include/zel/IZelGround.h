#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

class IZelProperty;

/// An infinite plane below the scene with a material of its own.
///
/// Grounds are made and owned by their manager. A view names its ground by identifier. AddRef and
/// Release may come from any thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one.
class IZelGround : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"5DA0F7A7048A4D318FB25F92C1159D7E"};

    /// False in a new ground.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// Where the plane lies, -10.0 in a new ground; any number.
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    /// The material, never null and the same as long as the ground lives. In a new ground its name
    /// is "Ground Material Name" and its diffuse colour R, G, B 128.
    virtual const IZelProperty* getProperty() const = 0;
    virtual IZelProperty* getProperty() = 0;

protected:
    ~IZelGround() override = default;
};

} // namespace OvZel
