#include "tools/CProgressBar.h"

#include "tools/platform.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace tool {

static bool isTurnedOff = false;

void CProgressBar::turnOff()
{
    isTurnedOff = true;
}

CProgressBar::CProgressBar() : mOnTerminal(!isTurnedOff && isErrorTerminal()) {}

void CProgressBar::show(std::int64_t position, std::int64_t total)
{
    if (!mOnTerminal || total <= 0)
        return;
    const int percent =
        static_cast<int>(100 * std::clamp<std::int64_t>(position, 0, total) / total);
    if (percent == mPercent)
        return;
    mPercent = percent;
    const std::size_t filled = static_cast<std::size_t>(percent) / 4;
    const std::string bar = std::string(filled, '#') + std::string(25 - filled, '.');
    std::fprintf(stderr, "\r[%s] %3d %%", bar.c_str(), percent);
}

void CProgressBar::clear()
{
    if (mPercent < 0)
        return;
    mPercent = -1;
    std::fputs("\r\033[K", stderr);
}

} // namespace tool
