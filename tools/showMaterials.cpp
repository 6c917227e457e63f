#include "tools/showParts.h"

#include "tools/nodeTree.h"
#include "tools/showValues.h"

#include <zel/IZelMgr.h>

namespace tool {

using nlohmann::ordered_json;

// In the order of eNodeType.
static constexpr const char* kNodeTypes[] = {
    "Root",    "Chess",    "Mapping",      "Turbulence",  "Leaf",   "Fresnel",    "FresnelDiffuse",
    "Glazing", "Altitude", "MultiTexture", "WangTexture", "Custom", "MatteShadow"};

// Kinds are counted from 1.
static constexpr const char* kMapKinds[] = {"diffuse",     "specular", "glossy", "reflection",
                                            "environment", "alpha",    "bump",   "normalMap",
                                            "neon",        "relief",   "movie"};

static ordered_json mapUrls(const OvZel::IZelMultiMaps& maps)
{
    ordered_json urls = ordered_json::object();
    std::int32_t kind = 0;
    for (const char* name : kMapKinds) {
        const char* url = maps.getURL(++kind);
        if (url && *url)
            urls[name] = url;
    }
    return urls;
}

static void addLeaf(const OvZel::ILeafNode& leaf, ordered_json& node)
{
    node["diffuse"] = colorText(leaf.getDiffuse());
    node["specular"] = colorText(leaf.getSpecular());
    node["reflection"] = colorText(leaf.getReflection());
    node["transparent"] = colorText(leaf.getTransparent());
    node["emitting"] = colorText(leaf.getEmittingColor());
    node["glossy"] = leaf.getGlossy();
    node["refraction"] = leaf.getRefraction();
}

static void addMapping(OvZel::IMappingNode& mapping, ordered_json& node)
{
    node["width"] = mapping.getWidth();
    node["height"] = mapping.getHeight();
    node["specular"] = colorText(mapping.getSpecular());
    node["reflection"] = colorText(mapping.getReflection());
    node["transparent"] = colorText(mapping.getTransparent());
    node["maps"] = mapUrls(*mapping.getMaps());
}

template <class T>
static ordered_json allMaps(OvZel::TZelObjectMgr<T>& list)
{
    return outlines(list, [](T& each) { return mapUrls(each); });
}

static ordered_json nodeOutline(OvZel::ITCENode& node, int depth)
{
    ordered_json object = {{"depth", depth}, {"type", word(kNodeTypes, node.getNodeType())}};
    if (const OvZel::ILeafNode* leaf = node.asLeafNode())
        addLeaf(*leaf, object);
    if (OvZel::IMappingNode* mapping = node.asMappingNode())
        addMapping(*mapping, object);
    if (OvZel::IAltitudeNode* altitude = node.asAltitudeNode())
        object["images"] = allMaps(*altitude->getSubParts());
    if (OvZel::IMultiTextureNode* textures = node.asMultiTextureNode())
        object["images"] = allMaps(*textures->getSubParts());
    if (OvZel::IWangTilesNode* tiles = node.asWangTilesNode())
        object["tiles"] = allMaps(*tiles->getTiles());
    if (const OvZel::ICustomNode* custom = node.asCustomNode())
        if (const char* name = custom->getClass())
            object["class"] = name;
    return object;
}

ordered_json materialOutline(OvZel::IZelProperty& property)
{
    ordered_json material = named(property);
    material["visible"] = property.getVisible();
    material["shader"] = property.getShaderUrl();
    ordered_json nodes = ordered_json::array();
    forEachNode(property, [&](OvZel::ITCENode& node, int depth) {
        nodes.push_back(nodeOutline(node, depth));
    });
    material["nodes"] = nodes;
    return material;
}

ordered_json overrideNames(OvZel::TZelObjectMgr<OvZel::IZelProperty>& list)
{
    return outlines(list, [](OvZel::IZelProperty& property) -> ordered_json {
        return property.getBasicData()->getName();
    });
}

void showMaterials(OvZel::IZelMgr& document, ordered_json& outline)
{
    outline["properties"] = outlines(*document.getProperties(), materialOutline);
}

} // namespace tool
