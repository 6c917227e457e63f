#pragma once

#include "tools/CToolError.h"

#include <functional>
#include <string>
#include <vector>

namespace tool {

/// Runs a command on each file in turn. What stops it on one file is told on standard error and
/// does not keep it from the others, except for a request to stop. The worst outcome is the result.
EExit eachFile(const std::vector<std::string>& files,
               const std::function<EExit(const std::string&)>& command);

} // namespace tool
