#pragma once

#include "xml/tree/lanes.h"

#include <cstdint>

namespace OvZel {

// Digits of a number as text in the lanes of a word; the first is in the lowest lane.

/// Each lane from '0' to '9' becomes the digit, all others 10 or more.
constexpr std::uint64_t digitLanes(std::uint64_t lanes)
{
    return lanes ^ OrvaneXML::eachLane('0');
}

/// The lanes that are no digits, of what digitLanes gave. Like all tests of lanes, right up to the
/// first that passes.
constexpr std::uint64_t lanesBeyondDigits(std::uint64_t digits)
{
    return (digits | (digits + OrvaneXML::eachLane(0x80 - 10))) & OrvaneXML::eachLane(0x80);
}

} // namespace OvZel
