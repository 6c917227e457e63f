#pragma once

namespace OvZel {

class IZelZelObjectDefinition;

/// What a definition of the class "LightObject" is beside a definition: nothing but this mark. Its
/// lights belong to the instances.
///
/// It belongs to its definition and goes with it or with its class.
/// The order of the virtual operations is a promise to compiled clients.
class IZelObjectLight {
public:
    /// The definition itself, without a reference for the caller.
    virtual const IZelZelObjectDefinition* getDefinition() const = 0;
    virtual IZelZelObjectDefinition* getDefinition() = 0;

protected:
    ~IZelObjectLight() = default;
};

} // namespace OvZel
