#pragma once

namespace OvZel {

class IZelObjectInstance;

/// What an instance of the classes "GroupInstances" and "3DPlantGroupInstances" has beyond
/// IZelObjectInstance. Part of its instance.
class IZelGroupInstances {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;
    /// As IZelZelObjectInstance::getUrl.
    virtual const char* getUrl() const = 0;
    virtual void setUrl(const char* url) = 0;

protected:
    ~IZelGroupInstances() = default;
};

} // namespace OvZel
