#include "tools/CFileResults.h"

#include "tools/CFileRun.h"
#include "tools/CToolOutput.h"
#include "tools/oneLine.h"

#include <algorithm>

namespace tool {

CFileResult makeResult(const CFileRun& run, const std::string& file, EExit code,
                       const std::string& failure, const nlohmann::ordered_json& fields)
{
    if (!failure.empty())
        complain(failure);
    if (!run.givesObjects())
        return {file, code, ""};
    nlohmann::ordered_json object = {{"file", file}, {"exit", static_cast<int>(code)}};
    if (!failure.empty())
        object["error"] = failure;
    object.update(fields);
    return {file, code, jsonLine(object)};
}

CFileResults::CFileResults(const CFileRun& run, CToolOutput& output) : mOutput(output)
{
    if (run.log.empty())
        return;
    mLog.emplace(run);
    mWorst = mLog->getWorst();
}

void CFileResults::add(const CFileResult& result)
{
    mWorst = std::max(mWorst, result.code);
    if (!result.text.empty())
        mOutput.write(result.text);
    if (mLog) // behind the text, so that a kill in between loses none
        mLog->add(result.file, result.code);
}

} // namespace tool
