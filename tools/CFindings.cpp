#include "tools/CFindings.h"

#include "tools/CToolOutput.h"
#include "tools/oneLine.h"

namespace tool {

void CFindings::add(const char* code, const std::string& text)
{
    mIsEmpty = false;
    mOutput.write(mAsJson ? jsonLine({{"file", mFile}, {"code", code}, {"text", text}})
                          : oneLine(mFile) + "\t" + code + "\t" + oneLine(text) + "\n");
}

} // namespace tool
