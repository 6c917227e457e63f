#pragma once

#include <zel/IZelTime.h>

#include <cstdint>

namespace OvZel {

class IZelObjectInstance;

/// What an instance of the classes "3DPlant" and "3DPlantGroupInstances" knows of its plant. Part
/// of its instance.
class IZel3DPlantRef {
public:
    /// The instance that this is a part of.
    virtual const IZelObjectInstance* getObjectInstance() const = 0;
    virtual IZelObjectInstance* getObjectInstance() = 0;
    /// Whether the plant follows the date of the sun; false in a new instance.
    virtual bool getHeliodonAttached() const = 0;
    virtual void setHeliodonAttached(bool attached) = 0;
    /// The plant's own moment; that of its making in a new instance.
    virtual const IZelTime* getTime() const = 0;
    virtual IZelTime* getTime() = 0;
    /// A colour of IZel3DPlant::IPlantSetUp; -1 in a new instance. Any number is stored, but one
    /// without a label fails the next save.
    virtual std::int32_t getColor() const = 0;
    virtual void setColor(std::int32_t color) = 0;

protected:
    ~IZel3DPlantRef() = default;
};

} // namespace OvZel
