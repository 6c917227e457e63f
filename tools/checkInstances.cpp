#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CNames.h"

#include <zel/IZelMgr.h>

#include <set>

namespace tool {

namespace {

// What the instances of a document may name.
struct CTargets {
    explicit CTargets(OvZel::IZelMgr& document)
        : components(*document.getDefinitions()),
          externalDefinitions(*document.getExternalDefinitions()), layers(*document.getLayers()),
          instances(*document.getObjectInstances())
    {
    }

    CNames components;
    CNames externalDefinitions;
    CNames layers;
    CNames instances;
};

} // namespace

static void checkInstance(OvZel::IZelObjectInstance& instance, const CTargets& targets,
                          CFindings& findings)
{
    const std::string name = "instance " + idText(*instance.getBasicData()->getId()) + " \"" +
                             instance.getBasicData()->getName() + "\"";
    const auto check = [&](const char* code, const char* what, const CNames& known,
                           const OvZel::CZelUUID& id) {
        if (known.lacks(id))
            findings.add(code, name + what + idText(id) + ", which isn't there");
    };
    if (const auto* component = instance.asInternalComponentInstance())
        check("W117", " places the component ", targets.components, component->getComponentUUID());
    if (const auto* placed = instance.asZelObjectInstance())
        check("W118", " places the external definition ", targets.externalDefinitions,
              placed->getExternalDefinitionId());
    check("W119", " is on the layer ", targets.layers, instance.getLayerId());
    check("W120", " is attached to the object ", targets.instances, instance.getAttachId());
}

static void checkPlaced(OvZel::IZelMgr& document, CFindings& findings)
{
    std::set<OvZel::CZelUUID> placed;
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        if (const auto* component = each.asInternalComponentInstance())
            placed.insert(component->getComponentUUID());
        if (const auto* object = each.asZelObjectInstance())
            placed.insert(object->getExternalDefinitionId());
    });
    const auto check = [&](const char* kind, OvZel::IZelBasic& definition) {
        const OvZel::CZelUUID& id = *definition.getBasicData()->getId();
        if (placed.count(id) == 0)
            findings.add("W121", "no instance places the " + std::string(kind) + idText(id));
    };
    forEach(*document.getDefinitions(), [&](OvZel::IZelZelObjectDefinition& each, std::int32_t) {
        check("definition ", each);
    });
    forEach(*document.getExternalDefinitions(),
            [&](OvZel::IZelExternalDefinition& each, std::int32_t) {
                check("external definition ", each);
            });
}

void checkInstances(OvZel::IZelMgr& document, CFindings& findings)
{
    const CTargets targets(document);
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        checkInstance(each, targets, findings);
    });
    checkPlaced(document, findings);
}

} // namespace tool
