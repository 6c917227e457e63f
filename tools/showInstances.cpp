#include "tools/showParts.h"

#include "tools/instanceMaterials.h"
#include "tools/showValues.h"

#include <zel/IZelMgr.h>

namespace tool {

using nlohmann::ordered_json;

// The classes for which a document keeps the layer of new objects.
static constexpr const char* kLayerClasses[] = {"3DPlant", "ZelObject", "Billboard", "LightObject",
                                                "AnimatedObject"};

namespace {

// The names of what instances name.
struct CTargets {
    explicit CTargets(OvZel::IZelMgr& document)
        : components(*document.getDefinitions()), layers(*document.getLayers()),
          instances(*document.getObjectInstances())
    {
        forEach(*document.getExternalDefinitions(),
                [&](OvZel::IZelExternalDefinition& each, std::int32_t) {
                    const std::string name = each.getBasicData()->getName();
                    externalDefinitions.add(*each.getBasicData()->getId(),
                                            name.empty() ? each.getURL() : name);
                });
    }

    CNames components;
    CNames externalDefinitions;
    CNames layers;
    CNames instances;
};

} // namespace

// What is placed, as far as the class of the instance says it.
static void addPlaced(OvZel::IZelObjectInstance& instance, const CTargets& targets,
                      ordered_json& object)
{
    if (const auto* component = instance.asInternalComponentInstance())
        object["component"] = targets.components.text(component->getComponentUUID());
    if (const auto* placed = instance.asZelObjectInstance()) {
        object["externalDefinition"] =
            targets.externalDefinitions.text(placed->getExternalDefinitionId());
        object["url"] = placed->getUrl();
    }
    if (const auto* group = instance.asGroupInstances())
        object["url"] = group->getUrl();
    if (const auto* billboard = instance.asBBObjectInstance())
        object["definition"] = billboard->getDefinitionName();
}

static ordered_json instanceOutline(OvZel::IZelObjectInstance& instance, const CTargets& targets)
{
    ordered_json object = named(instance);
    object["class"] = instance.getClass();
    object["layer"] = targets.layers.text(instance.getLayerId());
    addPlaced(instance, targets, object);
    object["attachedTo"] = targets.instances.text(instance.getAttachId());
    object["visible"] = instance.getVisible();
    object["translation"] = pointValue(instance.getTranslation());
    object["materials"] = ordered_json::array();
    forEachMaterialList(instance, [&](OvZel::TZelObjectMgr<OvZel::IZelProperty>& list) {
        for (const ordered_json& name : overrideNames(list))
            object["materials"].push_back(name);
    });
    return object;
}

static ordered_json layerInfoOutline(const OvZel::IZelLayerInfo& info, const CNames& layers)
{
    ordered_json defaults = ordered_json::object();
    for (const char* each : kLayerClasses)
        defaults[each] = layers.text(info.getDefaultLayer(each));
    return {{"active", layers.text(info.getActiveLayer())}, {"defaults", defaults}};
}

void showInstances(OvZel::IZelMgr& document, ordered_json& outline)
{
    const CTargets targets(document);
    outline["objectInstances"] =
        outlines(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& instance) {
            return instanceOutline(instance, targets);
        });
    outline["layers"] = outlines(*document.getLayers(), named);
    if (const OvZel::IZelLayerInfo* info = document.getLayerInfo())
        outline["layerInfo"] = layerInfoOutline(*info, targets.layers);
}

} // namespace tool
