#pragma once

#include <zel/CZelUUID.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelLight;
class IZelObjectInstance;
class IZelProperty;

/// What an instance of the classes "ZelObject", "3DPlant", "Billboard", "LightObject" and
/// "AnimatedObject" has beyond IZelObjectInstance. Part of its instance.
class IZelZelObjectInstance {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;
    /// The text of the child "Url" of "Instance.Data", kept there alone; empty without it. Good
    /// until that element changes.
    virtual const char* getUrl() const = 0;
    /// Null counts as the empty text.
    virtual void setUrl(const char* url) = 0;
    /// The material overrides.
    virtual const TZelObjectMgr<IZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;
    /// Null in a new instance; the meaning is the clients'.
    virtual const CZelUUID& getCurrentOverload() const = 0;
    virtual void setCurrentOverload(const CZelUUID& id) = 0;
    /// The lights that the instance carries.
    virtual const TZelObjectMgr<IZelLight>* getLights() const = 0;
    virtual TZelObjectMgr<IZelLight>* getLights() = 0;
    /// The external definition that is placed; null in a new instance. Nothing resolves it.
    virtual const CZelUUID& getExternalDefinitionId() const = 0;
    virtual void setExternalDefinitionId(const CZelUUID& id) = 0;

protected:
    ~IZelZelObjectInstance() = default;
};

} // namespace OvZel
