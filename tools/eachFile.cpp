#include "tools/eachFile.h"

#include "tools/interrupt.h"

#include <algorithm>

namespace tool {

EExit eachFile(const std::vector<std::string>& files,
               const std::function<EExit(const std::string&)>& command)
{
    EExit worst = eDone;
    for (const std::string& file : files) {
        try {
            worst = std::max(worst, command(file));
        } catch (const CToolError& error) {
            checkInterrupt();
            complain(error.what());
            worst = std::max(worst, error.code());
        }
        checkInterrupt();
    }
    return worst;
}

} // namespace tool
