#pragma once

#include <string>
#include <utility>

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

    /// Throws CRunError(eIoError) when the text cannot be written.
    void write(const std::string& text);
    /// From here on write collects the texts, and take gives those since the last one.
    void hold() { mIsHeld = true; }
    std::string take() { return std::exchange(mHeld, {}); }
    /// Writes a text past those that are held. Throws as write does.
    void pass(const std::string& text);

private:
    int mDescriptor;
    bool mIsHeld = false;
    std::string mHeld;
};

} // namespace tool
