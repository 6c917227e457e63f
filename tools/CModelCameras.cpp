#include "tools/CModelCameras.h"

#include "tools/CToolError.h"
#include "tools/forEach.h"
#include "tools/gltfCameras.h"
#include "tools/interrupt.h"
#include "tools/modelText.h"
#include "tools/nodeTransform.h"
#include "tools/stableId.h"

#include <zel/IZelMgr.h>

#include <assimp/scene.h>
#include <cmath>
#include <map>
#include <new>
#include <set>
#include <utility>

namespace tool {

using OvZel::CZelPoint;

using CPlaces = std::map<std::string, CTransform>;

static constexpr double kPi = 3.14159265358979323846;

static CZelPoint pointOf(const aiVector3D& vector)
{
    if (!std::isfinite(vector.x) || !std::isfinite(vector.y) || !std::isfinite(vector.z))
        throw CToolError(eNotReadable, "the model has a camera at a place that isn't a number");
    return {vector.x, vector.y, vector.z};
}

// With the length 1, if it has any.
static CZelPoint turned(const CTransform& transform, const aiVector3D& direction)
{
    const CZelPoint origin = transform.apply({0.0, 0.0, 0.0});
    const CZelPoint tip = transform.apply(pointOf(direction));
    const CZelPoint way{tip.x - origin.x, tip.y - origin.y, tip.z - origin.z};
    const double length = std::hypot(way.x, way.y, way.z);
    return length > 0.0 ? CZelPoint{way.x / length, way.y / length, way.z / length} : way;
}

// A camera knows its node by the name alone, and the first node of that name counts.
static CPlaces placesOf(const aiScene& scene)
{
    std::set<std::string> missing;
    for (unsigned i = 0; i < scene.mNumCameras; ++i)
        missing.insert(scene.mCameras[i]->mName.C_Str());
    CPlaces places;
    std::vector<std::pair<const aiNode*, CTransform>> waiting = {{scene.mRootNode, {}}};
    while (!waiting.empty() && !missing.empty()) {
        checkInterrupt();
        const auto [node, outer] = waiting.back();
        waiting.pop_back();
        const CTransform place = outer * transformOf(*node);
        if (missing.erase(node->mName.C_Str()) > 0)
            places[node->mName.C_Str()] = place;
        for (unsigned i = node->mNumChildren; i-- > 0;)
            waiting.emplace_back(node->mChildren[i], place);
    }
    return places;
}

CModelCameras::CModelCameras(const aiScene& scene)
{
    CPlaces places = placesOf(scene);
    const bool isAtNode = isGltf(scene);
    for (unsigned i = 0; i < scene.mNumCameras; ++i) {
        const aiCamera& camera = *scene.mCameras[i];
        if (camera.mOrthographicWidth > 0.0F) {
            ++mNbLeftOut;
            continue;
        }
        const CTransform& place = places[camera.mName.C_Str()];
        const CZelPoint eye = place.apply(isAtNode ? CZelPoint() : pointOf(camera.mPosition));
        const CZelPoint ahead = turned(place, camera.mLookAt);
        const double width = isAtNode ? gltfWidth(camera) : camera.mHorizontalFOV;
        mViews.push_back({camera.mName.C_Str(), rounded(eye),
                          rounded({eye.x + ahead.x, eye.y + ahead.y, eye.z + ahead.z}),
                          rounded(turned(place, camera.mUp)), width * 180.0 / kPi});
    }
}

void CModelCameras::addTo(OvZel::IZelMgr& document) const
{
    CEqualNames names;
    for (const CView& each : mViews) {
        OvZel::IZelCamera* view = document.getCameras()->newZelObject(-1);
        if (!view)
            throw std::bad_alloc();
        const OvZel::CZelUUID id = stableId("camera", {}, each.name, names.add(each.name));
        view->getViewInfo()->getBasicData()->setId(&id); // a file keeps none of the view itself
        if (!each.name.empty())
            view->getBasicData()->setName(modelText(each.name).c_str());
        view->setPosition(each.position);
        view->setTarget(each.target);
        view->setUp(each.up);
        if (each.focal > 0.0 && each.focal < 180.0) // nobody sees by any other angle
            view->setFocal(each.focal);
        forEach(*document.getLayers(), [&](OvZel::IZelLayer& layer, std::int32_t) {
            *view->getViewInfo()->getLayers()->newZelObject(-1) = *layer.getBasicData()->getId();
        });
    }
}

} // namespace tool
