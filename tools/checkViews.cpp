#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CNames.h"

#include <zel/IZelMgr.h>
#include <zel/IZelMgrEx.h>

#include <set>

namespace tool {

namespace {

// What the views of a document may name.
struct CTargets {
    explicit CTargets(OvZel::IZelMgr& document)
        : grounds(*document.getGrounds()), lightsGroups(*document.getLightsGroups()),
          layers(*document.getLayers())
    {
        forEach(*document.getHeliodons(), [&](OvZel::IZelHeliodon& each, std::int32_t) {
            heliodons.insert(each.getBasicData()->getName());
        });
        forEach(*document.getEnvironments(), [&](OvZel::IZelEnvironment& each, std::int32_t) {
            environments.add(each.getId(), each.getName());
        });
    }

    std::set<std::string> heliodons;
    CNames environments;
    CNames grounds;
    CNames lightsGroups;
    CNames layers;
};

} // namespace

static void checkView(OvZel::IZelViewBasic& view, const CTargets& targets, CFindings& findings)
{
    OvZel::IZelViewInfo& info = *view.getViewInfo();
    const std::string name =
        "view " + idText(*info.getBasicData()->getId()) + " \"" + view.getBasicData()->getName();
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
static void checkList(OvZel::TZelObjectMgr<T>& views, const CTargets& targets, CFindings& findings)
{
    forEach(views, [&](T& view, std::int32_t) { checkView(view, targets, findings); });
}

void checkViews(OvZel::IZelMgr& document, CFindings& findings)
{
    const CTargets targets(document);
    checkList(*document.getCameras(), targets, findings);
    checkList(*document.getParallelViews(), targets, findings);
    checkList(*document.getViewObjects(), targets, findings);
    if (OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel))
        checkList(*more->getWorkingViews(), targets, findings);
}

} // namespace tool
