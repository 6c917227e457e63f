#pragma once

#include <string>

namespace tool {

class CToolOutput;

struct CFileTask;

/// Writes the findings of one file as they come, or puts them into its object.
class CFindings {
public:
    CFindings(const CFileTask& task, bool asJson, CToolOutput& output);

    /// Throws CToolError(eIoError) when the line cannot be written.
    void add(const char* code, const std::string& text);
    bool isEmpty() const { return mIsEmpty; }

private:
    const CFileTask& mTask;
    bool mAsJson;
    CToolOutput& mOutput;
    bool mIsEmpty = true;
};

} // namespace tool
