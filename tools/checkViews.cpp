#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CViewTargets.h"

#include <zel/IZelMgrEx.h>

namespace tool {

static void checkInfo(OvZel::IZelViewInfo& info, const char* viewName, const CViewTargets& targets,
                      CFindings& findings)
{
    const std::string name = "view " + idText(*info.getBasicData()->getId()) + " \"" + viewName;
    const auto check = [&](const char* code, const char* what, const CNames& known,
                           const OvZel::CZelUUID& id) {
        if (known.lacks(id))
            findings.add(code, name + what + idText(id) + ", which isn't there");
    };
    const std::string heliodon = info.getHeliodonName();
    if (!heliodon.empty() && targets.heliodons.count(heliodon) == 0)
        findings.add("W123", name + "\" has the heliodon \"" + heliodon + "\", which isn't there");
    check("W124", "\" has the environment ", targets.environments, info.getEnvironment());
    check("W125", "\" has the ground ", targets.grounds, info.getGround());
    forEach(*info.getLightsGroups(), [&](OvZel::CZelUUID& id, std::int32_t) {
        check("W126", "\" has the light group ", targets.lightsGroups, id);
    });
    forEach(*info.getLayers(), [&](OvZel::CZelUUID& id, std::int32_t) {
        check("W127", "\" has the layer ", targets.layers, id);
    });
}

template <class T>
static void checkList(OvZel::TZelObjectMgr<T>& views, const CViewTargets& targets,
                      CFindings& findings)
{
    forEach(views, [&](T& view, std::int32_t) {
        checkInfo(*view.getViewInfo(), view.getBasicData()->getName(), targets, findings);
    });
}

static void checkPaths(OvZel::IZelAnimation& animation, const CViewTargets& targets,
                       CFindings& findings)
{
    forEach(*animation.getPaths(), [&](OvZel::IZelCameraPath& path, std::int32_t) {
        checkInfo(*path.getViewInfo(), path.getName(), targets, findings);
    });
}

void checkViews(OvZel::IZelMgr& document, CFindings& findings)
{
    const CViewTargets targets(document);
    checkList(*document.getCameras(), targets, findings);
    checkList(*document.getParallelViews(), targets, findings);
    checkList(*document.getViewObjects(), targets, findings);
    checkList(*document.getPanoramas(), targets, findings);
    forEach(*document.getScenarios(), [&](OvZel::IZelScenario& each, std::int32_t) {
        checkList(*each.getSequences(), targets, findings);
    });
    OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel);
    if (!more)
        return;
    checkList(*more->getWorkingViews(), targets, findings);
    forEach(*more->getAnimations(),
            [&](OvZel::IZelAnimation& each, std::int32_t) { checkPaths(each, targets, findings); });
}

} // namespace tool
