#include "tools/CToolFeedback.h"

#include "tools/interrupt.h"
#include "tools/oneLine.h"

#include <cstdio>

namespace tool {

static bool startsWith(const std::string& text, const char* start)
{
    return text.rfind(start, 0) == 0;
}

static bool isOfBlock(const std::string& message)
{
    static const std::string kEnd = "' data block";
    return message.size() >= kEnd.size() &&
           message.compare(message.size() - kEnd.size(), kEnd.size(), kEnd) == 0 &&
           (startsWith(message, "Error \"") ||
            startsWith(message, "Unknownm exception while parsing '")); // (sic)
}

bool isUnknownBlock(const std::string& message)
{
    return startsWith(message, "Error \"CData block unknown\" while parsing '");
}

void CToolFeedback::message(OvZel::IZelMgr*, const char* text)
{
    if (isInterrupted())
        return;
    // Names out of the file may stand in a message, line ends included.
    const std::string line = oneLine(text ? text : "");
    if (isOfBlock(line) && !isUnknownBlock(line))
        ++mNbLostBlocks;
    mBar.clear();
    if (mReceiver)
        mReceiver(line);
    else
        std::fputs((line + '\n').c_str(), stderr); // in one piece
}

bool CToolFeedback::progress(OvZel::IZelMgr*, std::int32_t position, std::int32_t total)
{
    mBar.show(position, total);
    return !isInterrupted();
}

} // namespace tool
