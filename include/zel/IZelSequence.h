#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelViewBasic.h>

#include <cstdint>

namespace OvZel {

/// A camera shot between two frames of a scenario. Its identifier is always that of the file after
/// a load.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelSequence : public IZelViewBasic {
public:
    static constexpr CZelUUID sIID{"2E9174E2853B4A2AB49E6060145DCFE0"};

    /// 0 in a new sequence; any number.
    virtual std::int32_t getStartFrame() const = 0;
    virtual void setStartFrame(std::int32_t frame) = 0;
    /// 250 in a new sequence; any number.
    virtual std::int32_t getEndFrame() const = 0;
    virtual void setEndFrame(std::int32_t frame) = 0;
    /// The eye, (50, 50, -60) in a new sequence.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& point) = 0;
    /// 0 a fixed point (in a new sequence), 2 forward on the path or at an angle to it, 3 an
    /// object. A number outside 0 to 3 becomes 0, and nothing warns. 1 is stored, but then a save
    /// fails.
    virtual std::int32_t getTargetType() const = 0;
    virtual void setTargetType(std::int32_t type) = 0;
    /// The aim, (50, 50, 50) in a new sequence.
    virtual const CZelPoint& getTarget() const = 0;
    virtual void setTarget(const CZelPoint& point) = 0;
    /// 100.0 in a new sequence.
    virtual double getTargetDistance() const = 0;
    virtual void setTargetDistance(double distance) = 0;
    /// 0.0 in a new sequence.
    virtual double getHorizontalAngle() const = 0;
    virtual void setHorizontalAngle(double angle) = 0;
    /// 0.0 in a new sequence.
    virtual double getVerticalAngle() const = 0;
    virtual void setVerticalAngle(double angle) = 0;
    /// (0, 0, 1) in a new sequence.
    virtual const CZelPoint& getPathTangent() const = 0;
    virtual void setPathTangent(const CZelPoint& tangent) = 0;
    /// Bit 0 of the view flags, which can only be set here.
    virtual bool getFlag0() const = 0;
    virtual void setFlag0() = 0;
    /// Bit 1 of the view flags.
    virtual bool getFlag1() const = 0;
    virtual void setFlag1(bool set) = 0;
    /// 2 in a new sequence; any number.
    virtual std::int32_t getViewFlags() const = 0;
    virtual void setViewFlags(std::int32_t flags) = 0;
    /// In radians, 0.00001 in a new sequence. Stored as it comes, unlike that of a camera.
    virtual double getRoll() const = 0;
    virtual void setRoll(double roll) = 0;
    /// In degrees, 50.0 in a new sequence. In a document, below 0.0 or not a number becomes 0.0 and
    /// above 180.0 becomes 180.0, with the warning "Method setFocal has clipped a value out of
    /// range."; a sequence without a document keeps any value.
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    /// The object at which the camera aims, null in a new sequence; the client moves the target.
    virtual const CZelUUID& getObjectId() const = 0;
    virtual void setObjectId(const CZelUUID& id) = 0;
    /// Stored only; false in a new sequence.
    virtual bool getArchitectFlag() const = 0;
    virtual void setArchitectFlag(bool flag) = 0;

protected:
    ~IZelSequence() override = default;
};

} // namespace OvZel
