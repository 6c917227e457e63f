#pragma once

namespace OvZel {

class IZelObjectInstance;

/// What an instance of the class "LightObject" has beyond IZelZelObjectInstance: nothing but to be
/// told apart. Part of its instance.
class IZelObjectLightRef {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;

protected:
    ~IZelObjectLightRef() = default;
};

} // namespace OvZel
