#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// A sound of a scenario. Made and owned by it.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelSnd {
public:
    static constexpr CZelUUID sIID{"0EA795F3EDBC4AA1B14C2CFF3E1F729E"};

    /// Null in a new sound.
    virtual const CZelUUID& getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    /// Where the file of the sound lies, empty in a new sound; good until the next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// 0 in a new sound.
    virtual std::int32_t getStartFrame() const = 0;
    virtual void setStartFrame(std::int32_t frame) = 0;

protected:
    ~IZelSnd() = default;
};

} // namespace OvZel
