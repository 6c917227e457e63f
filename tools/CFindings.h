#pragma once

#include <string>

namespace tool {

class CToolOutput;

/// Writes the findings of one file as they come.
class CFindings {
public:
    CFindings(const std::string& file, bool asJson, CToolOutput& output)
        : mFile(file), mAsJson(asJson), mOutput(output)
    {
    }

    /// Throws CToolError(eIoError) when the line cannot be written.
    void add(const char* code, const std::string& text);
    bool isEmpty() const { return mIsEmpty; }

private:
    const std::string& mFile;
    bool mAsJson;
    CToolOutput& mOutput;
    bool mIsEmpty = true;
};

} // namespace tool
