#pragma once

#include <string>
#include <vector>

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// What stands in the loaded file and will not be in the saved one.
struct CDropped {
    std::vector<std::string> earlySections; ///< names of sections of early versions
    bool hasApplicationData = false;
};

CDropped droppedSections(OvZel::IZelMgr& document);
/// Names them on standard error.
void reportDroppedSections(OvZel::IZelMgr& document, const std::string& path);
/// The identifiers, as they are written, that more than one component of the loaded file has.
std::vector<std::string> repeatedComponents(OvZel::IZelMgr& document);

} // namespace tool
