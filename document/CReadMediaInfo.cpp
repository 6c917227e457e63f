#include "document/CReadMediaInfo.h"

#include <cstdint>
#include <string_view>

namespace OvZel {

namespace {

constexpr std::string_view kPath[] = {"Zel.File", "Object.Definition", "Name"};
constexpr int kPathLength = 3;

} // namespace

void* CReadMediaInfo::StartElement(const char* name)
{
    // Other definitions have names too: the depth tells them apart.
    if (mMatched == mDepth && mMatched < kPathLength && kPath[mMatched] == name) {
        ++mMatched;
        if (mMatched == kPathLength)
            mName.clear();
    }
    ++mDepth;
    return nullptr;
}

void CReadMediaInfo::Attribute(const char* name, const char* value)
{
    if (mMatched != kPathLength || mDepth != kPathLength || name[0] == '\0')
        return;
    const auto first = static_cast<unsigned char>(name[0]);
    const auto second = static_cast<unsigned char>(name[1]);
    mName.setText(static_cast<std::uint32_t>(first) * 256 + second, value);
}

void CReadMediaInfo::EndElement(void*)
{
    if (mMatched == mDepth)
        --mMatched;
    --mDepth;
}

} // namespace OvZel
