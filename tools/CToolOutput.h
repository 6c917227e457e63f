#pragma once

#include <string>

namespace tool {

/// What the tool says on standard output.
///
/// The library may print a few lines of its own there. They would mix with output that another
/// program reads, so this object keeps the real standard output for the tool alone and sends
/// everything else that is written to the descriptor to standard error. Make one, first of all.
class CToolOutput {
public:
    CToolOutput();
    ~CToolOutput();
    CToolOutput(const CToolOutput&) = delete;
    CToolOutput& operator=(const CToolOutput&) = delete;

    /// Throws CToolError(eIoError) when the text cannot be written.
    void write(const std::string& text);

private:
    int mDescriptor;
};

} // namespace tool
