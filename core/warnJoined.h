#pragma once

#include <initializer_list>

namespace OvZel {

class IZelWarning;

/// Warns with the parts as one text, or with the shorter text where there is no memory to join
/// them: the failure that is told may be just that.
void warnJoined(IZelWarning& target, std::initializer_list<const char*> parts, const char* shorter);

} // namespace OvZel
