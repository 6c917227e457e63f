#pragma once

#include <zel/CZelUUID.h>
#include <zel/CZelVersion.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

namespace tool {

/// A text out of a file, or the name of one, as part of a line: what would end the line or move
/// the cursor becomes a question mark.
inline std::string oneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    return text;
}

/// A JSON object as a line. Bytes that are not UTF-8, as a file name may have, are replaced.
inline std::string jsonLine(const nlohmann::ordered_json& object)
{
    return object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

inline std::string idText(const OvZel::CZelUUID& id)
{
    char text[33];
    id.toText(text);
    return text;
}

inline std::string versionText(const OvZel::CZelVersion& version)
{
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.patch);
}

} // namespace tool
