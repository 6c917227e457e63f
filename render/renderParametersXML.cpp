#include "render/renderParametersXML.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <algorithm>

namespace OvZel {

namespace {

/// The tags of one entry, whose number in the file counts from 1.
struct CTags {
    explicit CTags(int entry)
    {
        const std::string number = std::to_string(entry + 1);
        value = "Double" + number;
        minimum = value + ".Min";
        maximum = value + ".Max";
        flag = "BOOL" + number;
        text = "STR" + number;
        color = "COLOR" + number;
    }

    std::string value, minimum, maximum, flag, text, color;
};

CZelColor toColor(const std::uint8_t (&bytes)[4])
{
    CZelColor color;
    std::copy_n(bytes, 4, color.bytes);
    return color;
}

void getIfThere(double& value, const CZelXMLGet& in, const std::string& tag)
{
    if (in.IsElement(tag))
        value = in.GetDouble(tag);
}

/// The name is the child's text. Without text the attribute counts that other names here have.
const char* configName(const CZelXMLGet& in)
{
    const char* text = in.GetText("Config.Name");
    const char* attribute = CZelXMLGet(in.GetElement("Config.Name")).GetOptionalAttribute("en");
    return *text == '\0' && attribute != nullptr ? attribute : text;
}

} // namespace

void addRenderParameters(const CZelRenderParameters& parameters, CZelXMLAdd out)
{
    out.AddText("Config.Name", parameters.configName.c_str());
    for (int i = 0; i < CZelRenderParameters::kNbEntries; ++i) {
        const CZelRenderParameters::CEntry& entry = parameters.entries[i];
        const CTags tags(i);
        out.AddDouble(tags.value, entry.value);
        out.AddDouble(tags.minimum, entry.minimum);
        out.AddDouble(tags.maximum, entry.maximum);
        out.AddBoolean(tags.flag, entry.flag);
        CZelXMLAdd(out.AddElement(tags.text)).AddAttribute("en", entry.text.c_str());
        out.AddColor(tags.color, toColor(entry.color));
    }
}

void getRenderParameters(CZelRenderParameters& parameters, const CZelXMLGet& in)
{
    if (in.IsElement("Config.Name"))
        parameters.configName = configName(in);
    for (int i = 0; i < CZelRenderParameters::kNbEntries; ++i) {
        CZelRenderParameters::CEntry& entry = parameters.entries[i];
        const CTags tags(i);
        getIfThere(entry.value, in, tags.value);
        getIfThere(entry.minimum, in, tags.minimum);
        getIfThere(entry.maximum, in, tags.maximum);
        entry.flag = in.IsElement(tags.flag);
        if (in.IsElement(tags.text))
            entry.text = in.GetAttributeLanguage(tags.text);
        if (in.IsElement(tags.color))
            std::copy_n(in.GetColor(tags.color).bytes, 4, entry.color);
    }
}

} // namespace OvZel
