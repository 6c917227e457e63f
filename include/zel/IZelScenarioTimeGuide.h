#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// A mark on the time line of a scenario. Made and owned by it.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelScenarioTimeGuide {
public:
    static constexpr CZelUUID sIID{"567933ED95DE47B4AFC295D02521AAD7"};

    /// The number of the frame, 0 in a new guide.
    virtual std::int32_t getTime() const = 0;
    virtual void setTime(std::int32_t time) = 0;

protected:
    ~IZelScenarioTimeGuide() = default;
};

} // namespace OvZel
