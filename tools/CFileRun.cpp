#include "tools/CFileRun.h"

#include <algorithm>

namespace tool {

bool CFileRun::isOfMany() const
{
    return isRecursive || isNullSeparated || nbJobs > 0 || nbShards > 0 || !log.empty() ||
           isWorker || std::count(files.begin(), files.end(), "-") > 0;
}

} // namespace tool
