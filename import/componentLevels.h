#pragma once

#include <cstdint>

namespace OvZel {

class IZelMgr;

/// The level of those internal components that the import doesn't look at.
inline constexpr std::int32_t kIgnoredLevel = 2;

/// How many internal components of the document have another level than the ignored one.
std::int32_t countComponents(IZelMgr& document);

/// Whether the last of these components is the exporter's top level, level 0. It is an answer about
/// the document as a whole: all its component instances then count as the exported model itself.
bool endsAtLevelZero(IZelMgr& document);

} // namespace OvZel
