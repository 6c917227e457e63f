#include "tools/CAnimationTargets.h"

#include "tools/instanceMaterials.h"
#include "tools/nodeTree.h"

#include <zel/IZelMgr.h>

namespace tool {

using OvZel::IZelProperty;

enum EKind : std::int32_t { eSequence = 1, eLight, eHeliodon, eObject, eProperty, eMappingNode };

// In the order of their numbers.
static constexpr const char* kKinds[] = {"nothing", "sequence", "light",       "heliodon",
                                         "object",  "property", "mapping node"};

template <class T>
static void addAll(OvZel::TZelObjectMgr<T>& list, CNames& names)
{
    forEach(list, [&](T& element, std::int32_t) {
        names.add(*element.getBasicData()->getId(), element.getBasicData()->getName());
    });
}

CAnimationTargets::CAnimationTargets(OvZel::IZelMgr& document) : mPaths(*document.get3DPaths())
{
    addScene(document);
    addProperties(document);
}

std::string CAnimationTargets::getKind(std::int32_t kind)
{
    return kind >= 0 && kind < kNbKinds ? kKinds[kind] : std::to_string(kind);
}

const CNames& CAnimationTargets::getObjects(std::int32_t kind) const
{
    return mObjects[kind > 0 && kind < kNbKinds ? kind : 0];
}

void CAnimationTargets::addScene(OvZel::IZelMgr& document)
{
    forEach(*document.getScenarios(), [&](OvZel::IZelScenario& each, std::int32_t) {
        addAll(*each.getSequences(), mObjects[eSequence]);
    });
    addAll(*document.getLights(), mObjects[eLight]);
    addAll(*document.getHeliodons(), mObjects[eHeliodon]);
    addAll(*document.getObjectInstances(), mObjects[eObject]);
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        if (OvZel::IZelZelObjectInstance* lamp = each.asZelObjectInstance())
            addAll(*lamp->getLights(), mObjects[eLight]);
    });
}

// A node of any type is taken: channels of texture and tile nodes have no kind of their own.
void CAnimationTargets::addProperty(IZelProperty& property)
{
    const std::string name = property.getBasicData()->getName();
    mObjects[eProperty].add(*property.getBasicData()->getId(), name);
    forEachNode(property, [&](OvZel::ITCENode& node, int) {
        mObjects[eMappingNode].add(node.getId(), "");
        if (const OvZel::IMappingNode* mapping = node.asMappingNode())
            mObjects[eMappingNode].add(mapping->getMappingNodeId(), "");
    });
}

void CAnimationTargets::addProperties(OvZel::IZelMgr& document)
{
    const auto addList = [&](OvZel::TZelObjectMgr<IZelProperty>& list) {
        forEach(list, [&](IZelProperty& each, std::int32_t) { addProperty(each); });
    };
    addList(*document.getProperties());
    addList(*document.getObjectDefinition()->getProperties());
    forEach(*document.getDefinitions(), [&](OvZel::IZelZelObjectDefinition& each, std::int32_t) {
        addList(*each.getProperties());
    });
    forEach(
        *document.getExternalDefinitions(),
        [&](OvZel::IZelExternalDefinition& each, std::int32_t) { addList(*each.getProperties()); });
    forEach(*document.getObjectInstances(), [&](OvZel::IZelObjectInstance& each, std::int32_t) {
        forEachMaterialList(each, addList);
    });
    forEach(*document.getGrounds(),
            [&](OvZel::IZelGround& each, std::int32_t) { addProperty(*each.getProperty()); });
}

} // namespace tool
