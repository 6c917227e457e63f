#include "tools/CToolOutput.h"

#include "tools/CToolError.h"
#include "tools/platform.h"

namespace tool {

CToolOutput::CToolOutput() : mDescriptor(takeStandardOutput()) {}

CToolOutput::~CToolOutput()
{
    if (mDescriptor >= 0)
        closeFile(mDescriptor);
}

void CToolOutput::write(const std::string& text)
{
    if (mIsHeld)
        mHeld += text;
    else
        pass(text);
}

void CToolOutput::pass(const std::string& text)
{
    if (!writeAll(mDescriptor, text.data(), text.size()))
        throw CRunError(eIoError, "can't write to standard output: " + lastFailure());
}

} // namespace tool
