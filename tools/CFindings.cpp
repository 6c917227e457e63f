#include "tools/CFindings.h"

#include "tools/CToolOutput.h"
#include "tools/eachFile.h"
#include "tools/oneLine.h"

namespace tool {

CFindings::CFindings(const CFileTask& task, bool asJson, CToolOutput& output)
    : mTask(task), mAsJson(asJson), mOutput(output)
{
    if (mTask.object)
        *mTask.object = {{"findings", nlohmann::json::array()}};
}

void CFindings::add(const char* code, const std::string& text)
{
    mIsEmpty = false;
    if (mTask.object)
        (*mTask.object)["findings"].push_back({{"code", code}, {"text", text}});
    else if (mAsJson)
        mOutput.write(jsonLine({{"file", mTask.file}, {"code", code}, {"text", text}}));
    else
        mOutput.write(oneLine(mTask.file) + "\t" + code + "\t" + oneLine(text) + "\n");
}

} // namespace tool
