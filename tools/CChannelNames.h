#pragma once

#include "tools/CToolDocument.h"

#include <map>
#include <string>

namespace tool {

/// The names that animated channels have in a file. The library tells a name only where it writes a
/// value, so that values of a document of its own are written here.
class CChannelNames {
public:
    CChannelNames();

    /// The name, or the number of a channel that has none.
    std::string text(std::int32_t channel);

private:
    std::string written(std::int32_t channel);

    CToolDocument mDocument;
    OvZel::IZelInterpolatedValue& mValue;
    std::map<std::int32_t, std::string> mNames;
};

} // namespace tool
