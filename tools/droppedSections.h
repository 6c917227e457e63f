#pragma once

#include <string>

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// Names on standard error what stands in the loaded file and will not be in the saved one:
/// sections of early versions, and application data.
void reportDroppedSections(OvZel::IZelMgr& document, const std::string& path);

} // namespace tool
