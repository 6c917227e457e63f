#include "tools/outlineText.h"

#include "tools/oneLine.h"

#include <algorithm>

namespace tool {

using nlohmann::ordered_json;

// Beyond this nodes are no longer moved to the right: a tree may be ten thousand deep.
static constexpr int kMaxDepth = 40;

static void addElement(const ordered_json& element, const std::string& indent, std::string& text);

// A text without its quotation marks and escapes, anything else as JSON has it.
static std::string plain(const ordered_json& value)
{
    return value.is_string() ? oneLine(value.get<std::string>()) : value.dump();
}

static bool isList(const ordered_json& value)
{
    return value.is_array() && (value.empty() || !value[0].is_object());
}

static std::string listText(const ordered_json& list)
{
    std::string text;
    for (const ordered_json& each : list)
        text += (text.empty() ? "" : ",") + plain(each);
    return text;
}

// What stands in the line of the element itself.
static std::string lineText(const ordered_json& element)
{
    const bool isNode = element.contains("depth");
    std::string text;
    for (const auto& [key, value] : element.items()) {
        const bool isShort = !value.is_structured() || isList(value);
        if (key == "depth" || !isShort || value == "" || (value.is_array() && value.empty()))
            continue;
        const std::string shown = value.is_array() ? listText(value) : plain(value);
        text += (text.empty() ? "" : " ");
        text += key == "uuid" || (isNode && key == "type") ? shown : key + "=" + shown;
    }
    return text;
}

static std::string nodeIndent(const ordered_json& element)
{
    const int depth = element.value("depth", 0);
    return std::string(2 * static_cast<std::size_t>(std::min(depth, kMaxDepth)), ' ');
}

// Objects are parts with a line of their own, and lists of objects are elements below their name.
static void addParts(const ordered_json& element, const std::string& indent, std::string& text)
{
    for (const auto& [key, value] : element.items()) {
        if (!value.is_structured() || isList(value) || value.empty())
            continue;
        text += indent + key + ":";
        if (value.is_object()) {
            text += " " + lineText(value) + "\n";
            addParts(value, indent + "  ", text);
            continue;
        }
        text += "\n";
        for (const ordered_json& each : value)
            addElement(each, indent + "  " + nodeIndent(each), text);
    }
}

static void addElement(const ordered_json& element, const std::string& indent, std::string& text)
{
    text += indent + lineText(element) + "\n";
    addParts(element, indent + "  ", text);
}

std::string outlineText(const ordered_json& outline)
{
    std::string text = plain(outline["file"]) + "\n";
    for (const char* key : {"uuid", "application", "name"})
        text += std::string("  ") + key + ": " + plain(outline[key]) + "\n";
    for (const auto& [name, count] : outline["counts"].items()) {
        text += "  " + name + ": " + plain(count) + "\n";
        if (outline.contains(name))
            for (const ordered_json& element : outline[name])
                addElement(element, "    ", text);
    }
    if (outline.contains("layerInfo"))
        addParts({{"layerInfo", outline["layerInfo"]}}, "  ", text);
    return text;
}

} // namespace tool
