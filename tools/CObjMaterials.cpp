#include "tools/CObjMaterials.h"

#include "tools/objText.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

namespace tool {

using OvZel::CZelColor;
using OvZel::CZelUUID;
using OvZel::IZelProperty;

static void addColor(std::string& text, const char* key, const CZelColor& color)
{
    text += key;
    for (int part = 1; part <= 3; ++part)
        addReal(text, color.bytes[part] / 255.0);
    text += '\n';
}

static void addNumber(std::string& text, const char* key, double number)
{
    text += key;
    addReal(text, number);
    text += '\n';
}

static void addMap(std::string& text, const char* key, const char* url)
{
    if (*url != '\0')
        text += std::string(key) + " " + oneLine(url) + "\n";
}

// The file knows one number for how clear a surface is: the mean of the three.
static double opacity(const CZelColor& transparent)
{
    return 1.0 - (transparent.bytes[1] + transparent.bytes[2] + transparent.bytes[3]) / (3 * 255.0);
}

static std::string bodyOf(IZelProperty& property)
{
    std::string text;
    addColor(text, "Kd", property.getDiffuseColor());
    addColor(text, "Ks", property.getSpecularColor());
    addNumber(text, "Ns", property.getGlossy());
    addNumber(text, "d", opacity(property.getTransparentColor()));
    addMap(text, "map_Kd", property.getDiffuseMapUrl());
    addMap(text, "map_bump", property.getBumpMapUrl());
    addMap(text, "norm", property.getNormalMapUrl());
    return text;
}

std::string CObjMaterials::add(IZelProperty& property, std::int32_t index)
{
    std::string wanted = oneLine(property.getBasicData()->getName());
    if (wanted.empty())
        wanted = "material_" + std::to_string(index);
    const std::string body = bodyOf(property);
    std::string name = wanted;
    for (int number = 2;; ++number) {
        const auto [known, isNew] = mBodies.emplace(name, body);
        if (isNew)
            mText += "newmtl " + name + "\n" + body;
        if (known->second == body)
            return name;
        name = wanted + "_" + std::to_string(number);
    }
}

void CObjMaterials::addOwner(const CZelUUID& owner, OvZel::TZelObjectMgr<IZelProperty>& properties)
{
    std::vector<std::string>& names = mNames[owner];
    if (!names.empty())
        return; // of two components with one identifier the first is meant
    for (std::int32_t i = 0; i < properties.getNbObjects(); ++i)
        names.push_back(add(*properties.getZelObject(i), i));
}

CObjMaterials::CObjMaterials(OvZel::IZelMgr& document)
{
    addOwner(CZelUUID(), *document.getProperties());
    for (std::int32_t i = 0; i < document.getDefinitions()->getNbObjects(); ++i) {
        OvZel::IZelZelObjectDefinition& definition = *document.getDefinitions()->getZelObject(i);
        addOwner(*definition.getBasicData()->getId(), *definition.getProperties());
    }
}

const std::vector<std::string>& CObjMaterials::namesOf(const CZelUUID& owner) const
{
    static const std::vector<std::string> kNone;
    const auto found = mNames.find(owner);
    return found != mNames.end() ? found->second : kNone;
}

} // namespace tool
