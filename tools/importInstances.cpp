#include "tools/CImportCount.h"

#include "tools/CNames.h"

#include <zel/IZelMgr.h>

#include <map>
#include <set>
#include <utility>

namespace tool {

using namespace OvZel;

namespace {

// Instances are partners when identifier and layer of the destination are the same.
using CPlace = std::pair<CZelUUID, CZelUUID>;

struct CPlaceUse {
    std::int32_t nbSources = 0;
    std::int32_t nbDestinations = 0;
    std::string name;
};

const CZelUUID& idOf(IZelBasic& object)
{
    return *object.getBasicData()->getId();
}

// By identifier of the source's layer that of the first layer of its name in the destination.
std::map<CZelUUID, CZelUUID> layerTable(IZelMgr& destination, IZelMgr& source)
{
    std::map<std::string, CZelUUID> byName;
    forEach(*destination.getLayers(), [&](IZelLayer& layer, std::int32_t) {
        byName.emplace(layer.getBasicData()->getName(), idOf(layer));
    });
    std::map<CZelUUID, CZelUUID> table;
    forEach(*source.getLayers(), [&](IZelLayer& layer, std::int32_t) {
        const auto found = byName.find(layer.getBasicData()->getName());
        if (found != byName.end())
            table.emplace(idOf(layer), found->second);
    });
    return table;
}

// Whether components of the source are the exporter's top level, which stays out.
bool endsAtLevelZero(IZelMgr& source)
{
    TZelObjectMgr<IZelZelObjectDefinition>& definitions = *source.getDefinitions();
    for (std::int32_t i = definitions.getNbObjects() - 1; i >= 0; --i)
        if (const std::int32_t level = definitions.getZelObject(i)->getGeometryLevel();
            level != kIgnoredLevel)
            return level == 0;
    return false;
}

bool isImported(IZelObjectInstance& instance, bool hasTopLevel)
{
    return instance.asBBObjectInstance() || instance.asZelObjectInstance() ||
           (instance.asInternalComponentInstance() && !hasTopLevel);
}

std::map<CPlace, CPlaceUse> usesOf(IZelMgr& destination, IZelMgr& source)
{
    std::map<CPlace, CPlaceUse> uses;
    const std::map<CZelUUID, CZelUUID> layers = layerTable(destination, source);
    const bool hasTopLevel = endsAtLevelZero(source);
    forEach(*source.getObjectInstances(), [&](IZelObjectInstance& instance, std::int32_t) {
        const auto layer = layers.find(instance.getLayerId());
        if (layer == layers.end() || !isImported(instance, hasTopLevel))
            return;
        CPlaceUse& use = uses[{idOf(instance), layer->second}];
        ++use.nbSources;
        use.name = instance.getBasicData()->getName();
    });
    forEach(*destination.getObjectInstances(), [&](IZelObjectInstance& instance, std::int32_t) {
        const auto found = uses.find({idOf(instance), instance.getLayerId()});
        if (found != uses.end())
            ++found->second.nbDestinations;
    });
    return uses;
}

} // namespace

CImportCount countInstances(IZelMgr& destination, IZelMgr& source)
{
    TZelObjectMgr<IZelObjectInstance>& instances = *destination.getObjectInstances();
    CImportCount count{
        "objectInstances", 0, 0, 0, {}, [&instances] { return instances.getNbObjects(); }};
    for (const auto& [place, use] : usesOf(destination, source)) {
        count.overwritten += use.nbDestinations > 0 ? 1 : 0;
        if (use.nbSources > 1 || use.nbDestinations > 1)
            count.ambiguous.push_back(use.name);
    }
    count.kept = instances.getNbObjects() - count.overwritten;
    return count;
}

std::vector<bool> instancesWithoutComponent(IZelMgr& document)
{
    const CNames components(*document.getDefinitions());
    std::vector<bool> without;
    forEach(*document.getObjectInstances(), [&](IZelObjectInstance& instance, std::int32_t) {
        const auto* placed = instance.asInternalComponentInstance();
        without.push_back(placed && components.lacks(placed->getComponentUUID()));
    });
    return without;
}

// Layers only come along with their instances, and are never overwritten.
CImportCount countLayers(IZelMgr& destination, IZelMgr& source)
{
    TZelObjectMgr<IZelLayer>& layers = *destination.getLayers();
    CImportCount count{
        "layers", 0, 0, layers.getNbObjects(), {}, [&layers] {
                           return layers.getNbObjects(); }};
    std::map<std::string, int> names;
    forEach(layers,
            [&](IZelLayer& layer, std::int32_t) { ++names[layer.getBasicData()->getName()]; });
    std::set<std::string> ambiguous;
    forEach(*source.getLayers(), [&](IZelLayer& layer, std::int32_t) {
        const auto found = names.find(layer.getBasicData()->getName());
        if (found != names.end() && found->second > 1)
            ambiguous.insert(found->first);
    });
    count.ambiguous.assign(ambiguous.begin(), ambiguous.end());
    return count;
}

} // namespace tool
