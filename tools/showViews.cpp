#include "tools/showParts.h"

#include "tools/showValues.h"

#include <zel/IZelMgr.h>
#include <zel/IZelMgrEx.h>

namespace tool {

using nlohmann::ordered_json;

static constexpr const char* kParallelTypes[] = {"front", "plan", "axonometric"};

namespace {

// The names of what views name.
struct CTargets {
    explicit CTargets(OvZel::IZelMgr& document)
        : grounds(*document.getGrounds()), lightsGroups(*document.getLightsGroups()),
          layers(*document.getLayers())
    {
        forEach(*document.getEnvironments(), [&](OvZel::IZelEnvironment& each, std::int32_t) {
            environments.add(each.getId(), each.getName());
        });
    }

    CNames environments;
    CNames grounds;
    CNames lightsGroups;
    CNames layers;
};

} // namespace

// The identifier is that of the view information, which stays the same from load to load.
static ordered_json head(OvZel::IZelViewBasic& view)
{
    return {{"uuid", idText(*view.getViewInfo()->getBasicData()->getId())},
            {"name", view.getBasicData()->getName()}};
}

static void addInfo(OvZel::IZelViewInfo& info, const CTargets& targets, ordered_json& object)
{
    object["heliodon"] = info.getHeliodonName();
    object["environment"] = targets.environments.text(info.getEnvironment());
    object["ground"] = targets.grounds.text(info.getGround());
    object["lightsGroups"] = nameList(*info.getLightsGroups(), targets.lightsGroups);
    object["layers"] = nameList(*info.getLayers(), targets.layers);
}

static ordered_json viewOutline(OvZel::IZelCamera& camera, const CTargets& targets)
{
    ordered_json object = head(camera);
    object["position"] = pointValue(camera.getPosition());
    object["target"] = pointValue(camera.getTarget());
    object["focal"] = camera.getFocal();
    addInfo(*camera.getViewInfo(), targets, object);
    return object;
}

static ordered_json viewOutline(OvZel::IZelParallelView& view, const CTargets& targets)
{
    ordered_json object = head(view);
    object["type"] = word(kParallelTypes, view.getType());
    object["position"] = pointValue(view.getPosition());
    object["target"] = pointValue(view.getTarget());
    object["size"] = view.getSize();
    addInfo(*view.getViewInfo(), targets, object);
    return object;
}

static ordered_json viewOutline(OvZel::IZelViewObject& view, const CTargets& targets)
{
    ordered_json object = head(view);
    object["center"] = pointValue(view.getCenter());
    object["radius"] = view.getRadius();
    object["focal"] = view.getFocal();
    addInfo(*view.getViewInfo(), targets, object);
    return object;
}

template <class T>
static ordered_json viewOutlines(OvZel::TZelObjectMgr<T>& views, const CTargets& targets)
{
    return outlines(views, [&](T& view) { return viewOutline(view, targets); });
}

void showViews(OvZel::IZelMgr& document, ordered_json& outline)
{
    const CTargets targets(document);
    outline["cameras"] = viewOutlines(*document.getCameras(), targets);
    outline["parallelViews"] = viewOutlines(*document.getParallelViews(), targets);
    outline["viewObjects"] = viewOutlines(*document.getViewObjects(), targets);
    if (OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel))
        outline["workingViews"] = viewOutlines(*more->getWorkingViews(), targets);
}

} // namespace tool
