#pragma once

#include <cstdint>

namespace OvZel {

/// The flare that a light or the sun leaves in the picture, part of its owner and good as long as
/// that. Values are stored as they come.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelLensFlare {
public:
    /// False in a new flare.
    virtual bool getUsed() const = 0;
    virtual void setUsed(bool used) = 0;
    /// 0 and 1 are the two lens flares, 2 and 3 the two halos; 0 in a new flare. Any other number
    /// is stored, but the document cannot be saved with it.
    virtual std::int32_t getType() const = 0;
    virtual void setType(std::int32_t type) = 0;
    /// 1.0 in a new flare.
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    /// 1.0 in a new flare.
    virtual double getIntensity() const = 0;
    virtual void setIntensity(double intensity) = 0;

protected:
    ~IZelLensFlare() = default;
};

} // namespace OvZel
