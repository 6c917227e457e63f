#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelViewBasic.h>

#include <cstdint>

namespace OvZel {

class IZelInsertionObject;

/// A perspective view: a camera. A new one is named "View 0".
///
/// It has no identifier of its own in the file: each load gives it a new one, and that of its view
/// information persists. Nothing is computed: neither the target from the object that it follows
/// nor an angle from the target.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelCamera : public IZelViewBasic {
public:
    static constexpr CZelUUID sIID{"B60F6146384C440B942E81AA5F822019"};

    /// The eye, (50, 50, -60) in a new camera.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& point) = 0;
    /// The aim, (50, 50, 50) in a new camera.
    virtual const CZelPoint& getTarget() const = 0;
    virtual void setTarget(const CZelPoint& point) = 0;
    /// Bit 0 of the view flags, which can only be set here.
    virtual bool getFlag0() const = 0;
    virtual void setFlag0() = 0;
    /// Bit 1 of the view flags.
    virtual bool getFlag1() const = 0;
    virtual void setFlag1(bool set) = 0;
    /// In radians, 0.00001 in a new camera. A finite value is brought into 0 to 2 pi (both
    /// included) in steps of 2 pi, infinity becomes 0, what is not a number is kept. Nothing warns.
    virtual double getRoll() const = 0;
    virtual void setRoll(double roll) = 0;
    /// In degrees, 50.0 in a new camera. In a document, below 0.0 or not a number becomes 0.0 and
    /// above 180.0 becomes 180.0, with the warning "Method setFocal has clipped a value out of
    /// range."; a camera without a document keeps any value.
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    /// 2 in a new camera; any number.
    virtual std::int32_t getViewFlags() const = 0;
    virtual void setViewFlags(std::int32_t flags) = 0;
    /// Owned by the camera and good as long as it, never null.
    virtual const IZelInsertionObject* getInsertionObject() const = 0;
    virtual IZelInsertionObject* getInsertionObject() = 0;
    /// 0 for a fixed point (in a new camera), 1 for the position of an object. Any other number
    /// becomes 0, and nothing warns.
    virtual std::int32_t getTargetType() const = 0;
    virtual void setTargetType(std::int32_t type) = 0;
    /// The object that the target follows, null in a new camera; the client moves the target.
    virtual const CZelUUID& getObjectId() const = 0;
    virtual void setObjectId(const CZelUUID& id) = 0;
    /// (0, 1, 0) in a new camera, and saved only once it was set.
    virtual const CZelPoint& getUp() const = 0;
    virtual void setUp(const CZelPoint& up) = 0;
    /// Whether setUp was called; nothing makes it false again.
    virtual bool getUpIsSet() const = 0;
    /// Stored only; false in a new camera.
    virtual bool getArchitectFlag() const = 0;
    virtual void setArchitectFlag(bool flag) = 0;

protected:
    ~IZelCamera() override = default;
};

} // namespace OvZel
