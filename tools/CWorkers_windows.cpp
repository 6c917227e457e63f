#include "tools/CWorkers.h"

#include "tools/CToolError.h"

namespace tool {

bool CWorkers::areSupported()
{
    return false;
}

void CWorkers::endWithStarter() {}

CWorkers::CWorkers(const std::vector<std::string>& arguments, int) : mArguments(arguments) {}

CWorkers::~CWorkers() = default;

void CWorkers::send(int, const std::string&)
{
    throw CRunError(eUnavailable, "no worker processes on this system");
}

CWorkers::CNews CWorkers::wait()
{
    return {};
}

} // namespace tool
