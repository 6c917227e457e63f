#pragma once

#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelObjectInstance;
class IZelProperty;

/// What an instance of the class "ModelObject" has beyond IZelObjectInstance. Part of its instance.
class IZelInternalComponentInstance {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;
    /// The internal component definition that is placed; null in a new instance. Nothing resolves
    /// it.
    virtual const CZelUUID& getComponentUUID() const = 0;
    virtual void setComponentUUID(const CZelUUID& id) = 0;
    /// The material overrides.
    virtual const TZelObjectMgr<IZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;

protected:
    ~IZelInternalComponentInstance() = default;
};

} // namespace OvZel
