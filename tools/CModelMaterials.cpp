#include "tools/CModelMaterials.h"

#include "tools/modelText.h"
#include "tools/nodeTree.h"
#include "tools/stableId.h"

#include <zel/IMappingNode.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelProperty.h>

#include <algorithm>
#include <assimp/scene.h>
#include <cmath>
#include <map>
#include <new>
#include <optional>

namespace tool {

using OvZel::CZelColor;
using OvZel::IZelProperty;

// Below 0, above 1 and no number at all count as the limit.
static std::uint8_t byteOf(float part)
{
    return static_cast<std::uint8_t>(
        std::lround(std::clamp(part > 0 ? part : 0, 0.0F, 1.0F) * 255));
}

static std::optional<CZelColor> colorOf(const aiMaterial& material, const char* key, unsigned type,
                                        unsigned index)
{
    aiColor4D color;
    if (material.Get(key, type, index, color) != aiReturn_SUCCESS)
        return std::nullopt;
    return CZelColor::rgb(byteOf(color.r), byteOf(color.g), byteOf(color.b));
}

static void fillSurface(IZelProperty& property, const aiMaterial& material)
{
    // Set in any case: a property without any value of its own is no source for a copy.
    const auto diffuse = colorOf(material, AI_MATKEY_COLOR_DIFFUSE);
    property.setDiffuseColor(diffuse.value_or(property.getDiffuseColor()));
    if (const auto color = colorOf(material, AI_MATKEY_COLOR_SPECULAR))
        property.setSpecularColor(*color);
    float value = 0;
    if (material.Get(AI_MATKEY_SHININESS, value) == aiReturn_SUCCESS)
        property.setGlossy(value);
    if (material.Get(AI_MATKEY_OPACITY, value) == aiReturn_SUCCESS) {
        const std::uint8_t clear = byteOf(1 - value);
        property.setTransparentColor(CZelColor::rgb(clear, clear, clear));
    }
}

// The first map of two kinds, with how it goes on beyond its edges.
static bool findMap(const aiMaterial& material, const aiTextureType (&kinds)[2], aiString& path,
                    aiTextureMapMode* modes)
{
    for (const aiTextureType kind : kinds)
        if (material.GetTexture(kind, 0, &path, nullptr, nullptr, nullptr, nullptr, modes) ==
            aiReturn_SUCCESS)
            return path.length > 0;
    return false;
}

static bool isRepeated(aiTextureMapMode mode)
{
    return mode == aiTextureMapMode_Wrap || mode == aiTextureMapMode_Mirror;
}

// A map by the coordinates of the mesh has the size 1.
static void layOut(IZelProperty& property, const aiTextureMapMode* modes)
{
    constexpr std::uint32_t kByMesh = 7;
    property.setProjection(kByMesh);
    property.setMapSize(1.0, 1.0);
    property.setMapRepeat(isRepeated(modes[0]), isRepeated(modes[1]));
    property.setUVDefined(true);
}

// Null for a map that only the model itself holds.
const char* CModelMaterials::urlOf(const aiString& path)
{
    const aiTexture* embedded = mScene.GetEmbeddedTexture(path.C_Str());
    if (!embedded)
        return path.C_Str();
    if (embedded->mFilename.length > 0)
        return embedded->mFilename.C_Str();
    ++mNbLeftOut;
    return nullptr;
}

void CModelMaterials::fillMaps(IZelProperty& property, const aiMaterial& material)
{
    const struct {
        aiTextureType kinds[2];
        void (IZelProperty::*setUrl)(const char*);
        void (IZelProperty::*setStrength)(double);
    } maps[] = {
        {{aiTextureType_DIFFUSE, aiTextureType_BASE_COLOR},
         &IZelProperty::setDiffuseMapUrl,
         nullptr},
        {{aiTextureType_HEIGHT, aiTextureType_NONE},
         &IZelProperty::setBumpMapUrl,
         &IZelProperty::setMapBump},
        {{aiTextureType_NORMALS, aiTextureType_NORMAL_CAMERA},
         &IZelProperty::setNormalMapUrl,
         &IZelProperty::setMapNormalMapValue},
    };
    bool isLaidOut = false;
    for (const auto& map : maps) {
        aiString path;
        aiTextureMapMode modes[2] = {aiTextureMapMode_Wrap, aiTextureMapMode_Wrap};
        if (!findMap(material, map.kinds, path, modes))
            continue;
        const char* const url = urlOf(path);
        if (!url)
            continue;
        if (!isLaidOut)
            layOut(property, modes);
        isLaidOut = true;
        (property.*map.setUrl)(modelText(url).c_str());
        if (map.setStrength)
            (property.*map.setStrength)(1.0); // a new map has none
    }
}

// To be called when the property has all its nodes.
static void identify(IZelProperty& property)
{
    OvZel::IZelBasicData& data = *property.getBasicData();
    const OvZel::CZelUUID id = stableId("property", {}, data.getName());
    data.setId(&id);
    std::uint64_t number = 0;
    forEachNode(property, [&](OvZel::ITCENode& node, int) {
        node.setId(stableId("node of material", id, "", number));
        if (OvZel::IMappingNode* mapping = node.asMappingNode())
            mapping->setMappingNodeId(stableId("mapping of material", id, "", number));
        ++number;
    });
}

void CModelMaterials::fill(IZelProperty& property, const aiMaterial& material)
{
    std::string name = modelText(material.GetName().C_Str());
    if (name.empty())
        name = "material_" + std::to_string(mIndices.size());
    property.getBasicData()->setName(mNames.add(name).c_str());
    fillSurface(property, material);
    fillMaps(property, material);
    identify(property);
}

// All values of a material. Two of the same text are copies.
static std::string valuesOf(const aiMaterial& material)
{
    std::string text;
    for (unsigned i = 0; i < material.mNumProperties; ++i) {
        const aiMaterialProperty& value = *material.mProperties[i];
        for (const unsigned number : {value.mSemantic, value.mIndex, value.mDataLength})
            text += std::to_string(number) + " ";
        text += value.mKey.C_Str();
        text.append(value.mData, value.mDataLength);
    }
    return text;
}

void CModelMaterials::addTo(OvZel::TZelObjectMgr<IZelProperty>& properties)
{
    std::map<std::string, std::int32_t> known;
    for (unsigned i = 0; i < mScene.mNumMaterials; ++i) {
        const aiMaterial& material = *mScene.mMaterials[i];
        const auto [place, isNew] = known.emplace(valuesOf(material), properties.getNbObjects());
        if (isNew) {
            IZelProperty* const property = properties.newZelObject(-1);
            if (!property)
                throw std::bad_alloc();
            fill(*property, material);
        }
        mIndices.push_back(place->second);
    }
}

} // namespace tool
