#pragma once

#include <cstdint>

namespace OvZel {

class IZelMgr;

/// What IZelMgr::doImportReference does.
void importReference(IZelMgr* destination, IZelMgr* source, std::int32_t flags);

} // namespace OvZel
