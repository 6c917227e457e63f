#pragma once

#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class IZelObjectInstance;
class IZelProperty;

/// What an instance of the class "AnimatedObject" has beyond IZelZelObjectInstance. Part of its
/// instance. Every number is stored as it was given.
class IZelAnimatedObjectInstance {
public:
    /// This and the next three are 0 in a new instance.
    virtual std::int32_t getCurrentFrame() const = 0;
    virtual void setCurrentFrame(std::int32_t frame) = 0;
    /// Index into the takes of the definition, which nothing checks.
    virtual std::int32_t getCurrentTake() const = 0;
    virtual void setCurrentTake(std::int32_t take) = 0;
    /// 0 in a new instance.
    virtual std::int32_t getRealDuration() const = 0;
    virtual void setRealDuration(std::int32_t duration) = 0;
    /// 0 in a new instance.
    virtual std::int32_t getStartFrame() const = 0;
    virtual void setStartFrame(std::int32_t frame) = 0;
    /// Materials in place of those of the character's file.
    virtual const TZelObjectMgr<IZelProperty>* getOverloadedProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getOverloadedProperties() = 0;
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;

protected:
    ~IZelAnimatedObjectInstance() = default;
};

} // namespace OvZel
