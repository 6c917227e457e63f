#include "tools/showParts.h"

#include "tools/showValues.h"

#include <zel/IZelMgr.h>
#include <zel/IZelMgrEx.h>

namespace tool {

using nlohmann::ordered_json;
using OvZel::IZelZelObjectDefinition;

static constexpr const char* kBillboardKinds[] = {"flat", "uniface", "multifaces"};

static ordered_json imageOutline(OvZel::IZelImage& image)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    image.getImage(&width, &height, nullptr);
    return {{"uuid", idText(*image.getId())}, {"width", width}, {"height", height}};
}

static ordered_json definitionOutline(IZelZelObjectDefinition& definition)
{
    return {
        {"uuid", idText(*definition.getBasicData()->getId())},
        {"name", definition.getName()->getCurrentText()},
        {"class", definition.getClass()},
        {"level", definition.getGeometryLevel()},
        {"points", definition.getPoints()->getNbObjects()},
        {"polygons", definition.getPolygons()->getNbObjects()},
        {"properties", overrideNames(*definition.getProperties())},
        {"setups", outlines(*definition.getSetups(),
                            [](IZelZelObjectDefinition::IZelZelObjectSetup& setup) -> ordered_json {
                                return setup.getName()->getCurrentText();
                            })}};
}

static ordered_json externalOutline(OvZel::IZelExternalDefinition& definition)
{
    ordered_json object = named(definition);
    object["url"] = definition.getURL();
    object["properties"] = overrideNames(*definition.getProperties());
    return object;
}

static ordered_json billboardOutline(OvZel::IZelBBMgrData& entry)
{
    OvZel::IZelBillboard& billboard = *entry.getBillboard();
    const OvZel::IZelTexture& texture = *entry.getTexture();
    ordered_json names =
        outlines(*billboard.getNames(), [](OvZel::IZelBillboard::IZelBBName& name) -> ordered_json {
            return name.getText();
        });
    return {{"names", names},
            {"kind", word(kBillboardKinds, billboard.getKind())},
            {"faces", billboard.getNbFaces()},
            {"triangles", entry.getQuads()->getNbObjects()},
            {"url", texture.getURL()},
            {"width", texture.getWidth()},
            {"height", texture.getHeight()}};
}

void showDefinitions(OvZel::IZelMgr& document, ordered_json& outline)
{
    outline["images"] = outlines(*document.getImages(), imageOutline);
    outline["definitions"] = outlines(*document.getDefinitions(), definitionOutline);
    outline["externalDefinitions"] = outlines(*document.getExternalDefinitions(), externalOutline);
    if (OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel))
        outline["billboards"] = outlines(*more->getBillboards(), billboardOutline);
}

} // namespace tool
