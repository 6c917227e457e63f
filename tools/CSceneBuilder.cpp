#include "tools/CSceneBuilder.h"

#include "tools/interrupt.h"
#include "tools/modelText.h"
#include "tools/nodeTransform.h"

#include <zel/IZelMgr.h>

#include <algorithm>
#include <assimp/scene.h>
#include <cmath>
#include <initializer_list>
#include <new>
#include <set>

namespace tool {

using OvZel::CZelBox;
using OvZel::CZelPoint;
using OvZel::CZelUUID;

template <class T>
static T& added(OvZel::TZelObjectMgr<T>* list)
{
    T* object = list->newZelObject(-1);
    if (!object)
        throw std::bad_alloc();
    return *object;
}

static double distance(const CZelPoint& a, const CZelPoint& b)
{
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

// Nothing when some point of the box would come to lie visibly beside where the transform puts it.
static std::optional<CPlacement> exactPlacement(const CTransform& transform, const CZelBox& box)
{
    const std::optional<CPlacement> nearest = transform.nearestPlacement();
    if (!nearest)
        return std::nullopt;
    const CPlacement placement{rounded(nearest->translation), rounded(nearest->rotation),
                               rounded(nearest->scale)};
    const CTransform kept = CTransform::of(placement);
    const double size = distance(transform.apply(box.minimum), transform.apply(box.maximum));
    double error = 0.0;
    for (const double x : {box.minimum.x, box.maximum.x})
        for (const double y : {box.minimum.y, box.maximum.y})
            for (const double z : {box.minimum.z, box.maximum.z})
                error =
                    std::max(error, distance(transform.apply({x, y, z}), kept.apply({x, y, z})));
    // The points of the component are rounded too, before they are scaled.
    const CZelPoint& scale = placement.scale;
    error += 0.9e-6 * std::max({std::abs(scale.x), scale.y, scale.z});
    return error <= 2e-6 * (1.0 + size) ? std::optional(placement) : std::nullopt;
}

void CSceneBuilder::addMaterials()
{
    mMaterials.addTo(*mDocument.getProperties());
}

void CSceneBuilder::addWhole()
{
    mSource.setWhole(mMaterials.getIndices());
}

void CSceneBuilder::findPlacesAt(const CPlace& place)
{
    CEqualNames names;
    for (unsigned i = 0; i < place.node->mNumMeshes; ++i) {
        const unsigned mesh = place.node->mMeshes[i];
        if (mesh >= mScene.mNumMeshes || mSource.getNbPolygons(mesh) == 0)
            continue;
        const std::string name = mScene.mMeshes[mesh]->mName.C_Str();
        CPlace& found = mPlaces.emplace_back(place);
        found.mesh = mesh;
        found.id = stableId("place", place.id, name, names.add(name));
        mFirstPlace.emplace(mesh, found.id);
        found.placement = exactPlacement(place.transform, mSource.getBox(mesh));
    }
}

static std::vector<CZelUUID> idsOfChildren(const aiNode& node, const CZelUUID& id)
{
    std::vector<CZelUUID> ids;
    CEqualNames names;
    for (unsigned i = 0; i < node.mNumChildren; ++i) {
        const std::string name = node.mChildren[i]->mName.C_Str();
        ids.push_back(stableId("node", id, name, names.add(name)));
    }
    return ids;
}

void CSceneBuilder::findPlaces()
{
    std::vector<CPlace> waiting{{0, mScene.mRootNode, mScene.mRootNode, {}, {}, {}}};
    waiting.back().transform = transformOf(*mScene.mRootNode);
    while (!waiting.empty()) {
        checkInterrupt();
        const CPlace place = waiting.back();
        waiting.pop_back();
        findPlacesAt(place);
        const std::vector<CZelUUID> ids = idsOfChildren(*place.node, place.id);
        for (unsigned i = place.node->mNumChildren; i-- > 0;) {
            const aiNode* child = place.node->mChildren[i];
            CPlace& below = waiting.emplace_back(place);
            below.node = child;
            below.id = ids[i];
            below.top = place.node == mScene.mRootNode ? child : place.top;
            below.transform = place.transform * transformOf(*child);
        }
    }
}

static std::string nameOf(const aiMesh& mesh, unsigned number)
{
    return mesh.mName.length > 0 ? mesh.mName.C_Str() : "mesh_" + std::to_string(number);
}

// A number among the meshes of one name would pass to another mesh when one is added or goes.
CZelUUID CSceneBuilder::idOfMesh(unsigned mesh)
{
    const std::string name = mScene.mMeshes[mesh]->mName.C_Str();
    if (!name.empty() && mNbOfName[name] == 1)
        return stableId("component", {}, name);
    const auto place = mFirstPlace.find(mesh);
    if (place != mFirstPlace.end())
        return stableId("component of place", place->second, "");
    return stableId("component without place", {}, name, mUnplaced.add(name));
}

void CSceneBuilder::addDefinition(unsigned mesh, const std::string& name, const CZelUUID& id)
{
    OvZel::IZelZelObjectDefinition& definition = added(mDocument.getDefinitions());
    definition.setClass("ModelObject");
    // Level 0 is an export's one top-level component, whose instances no import takes over.
    definition.setGeometryLevel(1);
    definition.getBasicData()->setName(modelText(name).c_str());
    definition.getBasicData()->setId(&id);
    const unsigned material = mScene.mMeshes[mesh]->mMaterialIndex;
    if (material < mScene.mNumMaterials) {
        OvZel::IZelProperty& property = added(definition.getProperties());
        const std::int32_t index = mMaterials.getIndices()[material];
        property.copyFrom(mDocument.getProperties()->getZelObject(index));
        const CZelUUID propertyId = stableId("property of component", id, "");
        property.getBasicData()->setId(&propertyId);
    }
}

CZelUUID CSceneBuilder::componentOf(const CPlace& place)
{
    if (place.placement)
        return mComponents.at(place.mesh);
    const CZelUUID id = stableId("moved component", place.id, "");
    addDefinition(place.mesh, place.node->mName.C_Str(), id);
    mSource.setComponent(id, place.mesh, &place.transform);
    return id;
}

CZelUUID CSceneBuilder::layerOf(const std::string& name)
{
    const auto known = mLayers.find(name);
    if (known != mLayers.end())
        return known->second;
    OvZel::IZelLayer& layer = added(mDocument.getLayers());
    layer.getBasicData()->setName(modelText(name).c_str());
    const CZelUUID id = stableId("layer", {}, name);
    layer.getBasicData()->setId(&id);
    return mLayers[name] = id;
}

void CSceneBuilder::addInstance(const CPlace& place)
{
    OvZel::IZelObjectInstance& instance = added(mDocument.getObjectInstances());
    instance.setClass("ModelObject");
    instance.getBasicData()->setName(modelText(place.node->mName.C_Str()).c_str());
    instance.getBasicData()->setId(&place.id);
    instance.asInternalComponentInstance()->setComponentUUID(componentOf(place));
    const CPlacement placement = place.placement.value_or(CPlacement());
    instance.setTranslation(placement.translation);
    instance.setRotation(placement.rotation);
    instance.setScale(placement.scale);
    instance.setLayerId(layerOf(place.top->mName.C_Str()));
}

void CSceneBuilder::addComponents()
{
    findPlaces();
    for (unsigned i = 0; i < mScene.mNumMeshes; ++i)
        ++mNbOfName[mScene.mMeshes[i]->mName.C_Str()];
    std::set<unsigned> moved;
    for (const CPlace& place : mPlaces)
        if (place.placement)
            mComponents[place.mesh];
        else
            moved.insert(place.mesh);
    for (unsigned i = 0; i < mScene.mNumMeshes; ++i) {
        const bool isPlaced = mComponents.count(i) > 0;
        if (mSource.getNbPolygons(i) == 0 || (!isPlaced && moved.count(i) > 0))
            continue;
        const CZelUUID id = idOfMesh(i);
        addDefinition(i, nameOf(*mScene.mMeshes[i], i), id);
        mSource.setComponent(id, i);
        if (isPlaced)
            mComponents[i] = id;
    }
    for (const CPlace& place : mPlaces)
        addInstance(place);
}

} // namespace tool
