#include "tools/CObjPlaces.h"

#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

#include <cstring>

namespace tool {

using OvZel::CZelUUID;

CObjPlaces::CObjPlaces(OvZel::IZelMgr& document)
{
    addComponents(document);
    addInstances(document);
    for (const auto& [id, name] : mNames) {
        std::vector<CObjPlace>& places = mPlaces[id];
        if (places.empty())
            places.push_back({name, "no instance places this component", {}});
    }
}

void CObjPlaces::addComponents(OvZel::IZelMgr& document)
{
    for (std::int32_t i = 0; i < document.getDefinitions()->getNbObjects(); ++i) {
        OvZel::IZelBasicData& data = *document.getDefinitions()->getZelObject(i)->getBasicData();
        std::string name = oneLine(data.getName());
        if (name.empty())
            name = "component_" + idText(*data.getId());
        mNames.emplace(*data.getId(), name);
    }
}

static CPlacement placementOf(const OvZel::IZelObjectInstance& instance)
{
    return {instance.getTranslation(), instance.getRotation(), instance.getScale()};
}

void CObjPlaces::addInstances(OvZel::IZelMgr& document)
{
    for (std::int32_t i = 0; i < document.getObjectInstances()->getNbObjects(); ++i) {
        OvZel::IZelObjectInstance& instance = *document.getObjectInstances()->getZelObject(i);
        const auto* const delegate = instance.asInternalComponentInstance();
        const auto component = delegate ? mNames.find(delegate->getComponentUUID()) : mNames.end();
        if (component == mNames.end()) {
            ++mNbLeftOut;
            continue;
        }
        std::string name = oneLine(instance.getBasicData()->getName());
        if (name.empty())
            name = component->second;
        mPlaces[component->first].push_back({name, "", CTransform::of(placementOf(instance))});
    }
}

const std::vector<CObjPlace>& CObjPlaces::of(const CZelUUID& component) const
{
    const auto found = mPlaces.find(component);
    return found != mPlaces.end() ? found->second : mInPlace;
}

} // namespace tool
