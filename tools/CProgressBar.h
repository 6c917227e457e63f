#pragma once

#include <cstdint>

namespace tool {

/// A bar on standard error while something takes long; nothing unless that is a terminal.
class CProgressBar {
public:
    CProgressBar();
    ~CProgressBar() { clear(); }
    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;

    /// From here on no new bar shows anything, as suits one process of several.
    static void turnOff();

    /// Numbers out of range count as the nearest that is in it.
    void show(std::int64_t position, std::int64_t total);
    /// Takes the bar away, so that a line can be written.
    void clear();

private:
    bool mOnTerminal;
    int mPercent = -1; // as shown; -1 for no bar
};

} // namespace tool
