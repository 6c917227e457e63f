#include "tests/conformance/events.h"

#include <algorithm>

namespace ZelTest {

namespace {

bool isWhite(const std::string& text)
{
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

} // namespace

void CEventList::start(const std::string& name)
{
    flushText();
    if (!mOpen.empty())
        mOpen.back().hasElements = true;
    mOpen.push_back({name, false, {}});
    add("start " + name);
    mLastStart = mEvents.size();
    mNbNamespaces = 0;
}

void CEventList::namespaceAttribute(const std::string& name, const std::string& value)
{
    const auto place = static_cast<std::ptrdiff_t>(mLastStart + mNbNamespaces++);
    mEvents.insert(mEvents.begin() + place, "attribute " + name + '=' + value);
}

void CEventList::attribute(const std::string& name, const std::string& value)
{
    add("attribute " + name + '=' + value);
}

void CEventList::text(const std::string& content)
{
    mText += content;
}

void CEventList::section(const std::string& content)
{
    flushText();
    add("section " + content);
}

void CEventList::comment(const std::string& content)
{
    flushText();
    add("comment " + content);
}

void CEventList::instruction(const std::string& target, const std::string& content)
{
    if (target == "xml")
        return;
    flushText();
    add("instruction " + target + ' ' + content);
}

void CEventList::end()
{
    flushText();
    const COpen open = std::move(mOpen.back());
    mOpen.pop_back();
    if (open.hasElements)
        for (const std::size_t place : open.white)
            mEvents[place].clear();
    add("end " + open.name);
}

void CEventList::flushText()
{
    if (mText.empty() || mOpen.empty())
        return;
    if (isWhite(mText))
        mOpen.back().white.push_back(mEvents.size());
    add("text " + mText);
    mText.clear();
}

CEvents CEventList::take()
{
    CEvents events = std::move(mEvents);
    events.erase(std::remove(events.begin(), events.end(), ""), events.end());
    return events;
}

} // namespace ZelTest
