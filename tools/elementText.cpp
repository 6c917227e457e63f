#include "tools/elementText.h"

#include <zel/xml/XIXMLElement.h>

namespace tool {

using OrvaneXML::XIXMLAttribute;
using OrvaneXML::XIXMLComment;
using OrvaneXML::XIXMLData;
using OrvaneXML::XIXMLElement;

// What a reader would take for markup, or change in an attribute, becomes a reference.
static std::string escaped(const std::string& value)
{
    std::string text;
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '&' || c == '<' || c == '>' || c == '"' || byte < ' ')
            text += "&#" + std::to_string(byte) + ";";
        else
            text += c;
    }
    return text;
}

static std::string startTag(const XIXMLElement& element)
{
    std::string text = "<" + std::string(element.GetKey());
    for (const XIXMLAttribute* each = element.GetFirstAttribute(); each; each = each->GetNext())
        text += " " + std::string(each->GetKey()) + "=\"" + escaped(each->GetValue()) + "\"";
    return text + (element.GetFirstNode() ? ">" : "/>");
}

static std::string nodeText(XIXMLData& node)
{
    if (const XIXMLElement* element = node.AsElement())
        return startTag(*element);
    if (const XIXMLComment* comment = node.AsComment())
        return "<!--" + std::string(comment->GetText()) + "-->";
    return node.AsInstruction() ? "" : escaped(node.GetText());
}

static XIXMLData* firstBelow(XIXMLData& node)
{
    const XIXMLElement* element = node.AsElement();
    return element ? element->GetFirstNode() : nullptr;
}

// Elements may nest ten thousand deep, so nothing here calls itself.
std::string elementText(XIXMLElement& element)
{
    XIXMLData* const top = element.GetNode();
    std::string text = nodeText(*top);
    XIXMLData* node = firstBelow(*top);
    while (node) {
        text += nodeText(*node);
        if (XIXMLData* below = firstBelow(*node)) {
            node = below;
            continue;
        }
        while (node != top && !node->GetNextNode()) {
            XIXMLElement* parent = node->GetParent();
            text += "</" + std::string(parent->GetKey()) + ">";
            node = parent->GetNode();
        }
        node = node == top ? nullptr : node->GetNextNode();
    }
    return text;
}

} // namespace tool
