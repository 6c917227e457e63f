#include "tools/showParts.h"

#include "tools/CViewTargets.h"
#include "tools/showValues.h"

#include <zel/IZelMgrEx.h>

namespace tool {

using nlohmann::ordered_json;

static constexpr const char* kParallelTypes[] = {"front", "plan", "axonometric"};

// The identifier is that of the view information, which stays the same from load to load.
static ordered_json head(OvZel::IZelViewBasic& view)
{
    return {{"uuid", idText(*view.getViewInfo()->getBasicData()->getId())},
            {"name", view.getBasicData()->getName()}};
}

void addViewInfo(OvZel::IZelViewInfo& info, const CViewTargets& targets, ordered_json& object)
{
    object["heliodon"] = info.getHeliodonName();
    object["environment"] = targets.environments.text(info.getEnvironment());
    object["ground"] = targets.grounds.text(info.getGround());
    object["lightsGroups"] = nameList(*info.getLightsGroups(), targets.lightsGroups);
    object["layers"] = nameList(*info.getLayers(), targets.layers);
}

static ordered_json viewOutline(OvZel::IZelCamera& camera, const CViewTargets& targets)
{
    ordered_json object = head(camera);
    object["position"] = pointValue(camera.getPosition());
    object["target"] = pointValue(camera.getTarget());
    object["focal"] = camera.getFocal();
    addViewInfo(*camera.getViewInfo(), targets, object);
    return object;
}

static ordered_json viewOutline(OvZel::IZelParallelView& view, const CViewTargets& targets)
{
    ordered_json object = head(view);
    object["type"] = word(kParallelTypes, view.getType());
    object["position"] = pointValue(view.getPosition());
    object["target"] = pointValue(view.getTarget());
    object["size"] = view.getSize();
    addViewInfo(*view.getViewInfo(), targets, object);
    return object;
}

static ordered_json viewOutline(OvZel::IZelViewObject& view, const CViewTargets& targets)
{
    ordered_json object = head(view);
    object["center"] = pointValue(view.getCenter());
    object["radius"] = view.getRadius();
    object["focal"] = view.getFocal();
    addViewInfo(*view.getViewInfo(), targets, object);
    return object;
}

template <class T>
static ordered_json viewOutlines(OvZel::TZelObjectMgr<T>& views, const CViewTargets& targets)
{
    return outlines(views, [&](T& view) { return viewOutline(view, targets); });
}

void showViews(OvZel::IZelMgr& document, ordered_json& outline)
{
    const CViewTargets targets(document);
    outline["cameras"] = viewOutlines(*document.getCameras(), targets);
    outline["parallelViews"] = viewOutlines(*document.getParallelViews(), targets);
    outline["viewObjects"] = viewOutlines(*document.getViewObjects(), targets);
    if (OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel))
        outline["workingViews"] = viewOutlines(*more->getWorkingViews(), targets);
}

} // namespace tool
