#include "import/CMaterialsImport.h"

#include "import/TFirstIndex.h"
#include "import/componentLevels.h"

namespace OvZel {

namespace {

using CProperties = TZelObjectMgr<IZelProperty>;
using CKeys = std::map<std::string, IZelProperty*>;

/// An instance has two lists of overrides, its own and that of its component.
CProperties& ownList(IZelObjectInstance& instance)
{
    return *instance.getProperties();
}

CProperties& componentList(IZelObjectInstance& instance)
{
    return *instance.asInternalComponentInstance()->getProperties();
}

/// What stands ahead of a material's name in its key.
template <class I>
std::string prefixOf(I& holder)
{
    return CNameOf()(holder) + "-";
}

/// Of materials with one key the first counts.
void addKeys(CKeys& keys, CProperties& list, const std::string& prefix)
{
    for (std::int32_t i = 0; i < list.getNbObjects(); ++i) {
        IZelProperty* property = list.getZelObject(i);
        keys.emplace(prefix + CNameOf()(*property), property);
    }
}

void overwrite(CProperties& list, const std::string& prefix, const CKeys& sources)
{
    for (std::int32_t i = 0; i < list.getNbObjects(); ++i) {
        IZelProperty* property = list.getZelObject(i);
        const auto found = sources.find(prefix + CNameOf()(*property));
        if (found != sources.end())
            copyThroughXML(*found->second, [&] { return property; });
    }
}

/// Calls use for every instance of the document that is one of a component.
template <class Use>
void forEachComponentInstance(IZelMgr& document, Use&& use)
{
    TZelObjectMgr<IZelObjectInstance>& instances = *document.getObjectInstances();
    for (std::int32_t i = 0; i < instances.getNbObjects(); ++i) {
        IZelObjectInstance& instance = *instances.getZelObject(i);
        if (instance.asInternalComponentInstance() != nullptr)
            use(instance);
    }
}

} // namespace

CMaterialsImport::CMaterialsImport(IZelMgr& destination, IZelMgr& source)
    : mDestination(destination), mSource(source)
{
}

void CMaterialsImport::importOfInstances()
{
    const std::int32_t nbComponents = countComponents(mSource);
    if (nbComponents == 0)
        return;
    // The document's own materials belong to no instance, and with a single component the name of
    // the instance has nothing to tell apart.
    const bool areNamesBare = mSource.getLayers()->getNbObjects() == 0 || nbComponents == 1;
    importLists(ownList, areNamesBare);
    importLists(componentList, areNamesBare);
}

void CMaterialsImport::importLists(CListOf listOf, bool areNamesBare)
{
    const CKeys keys = instanceKeys(listOf, areNamesBare);
    forEachComponentInstance(mDestination, [&](IZelObjectInstance& instance) {
        overwrite(listOf(instance), areNamesBare ? "" : prefixOf(instance), keys);
    });
}

CMaterialsImport::CKeys CMaterialsImport::instanceKeys(CListOf listOf, bool areNamesBare)
{
    CKeys keys;
    if (mSource.getLayers()->getNbObjects() == 0) {
        addKeys(keys, *mSource.getProperties(), "");
        return keys;
    }
    forEachComponentInstance(mSource, [&](IZelObjectInstance& instance) {
        addKeys(keys, listOf(instance), areNamesBare ? "" : prefixOf(instance));
    });
    return keys;
}

void CMaterialsImport::importOfDefinitions()
{
    CKeys keys;
    TZelObjectMgr<IZelZelObjectDefinition>& sources = *mSource.getDefinitions();
    for (std::int32_t i = 0; i < sources.getNbObjects(); ++i) {
        IZelZelObjectDefinition& definition = *sources.getZelObject(i);
        addKeys(keys, *definition.getProperties(), prefixOf(definition));
    }
    TZelObjectMgr<IZelZelObjectDefinition>& destinations = *mDestination.getDefinitions();
    for (std::int32_t i = 0; i < destinations.getNbObjects(); ++i) {
        IZelZelObjectDefinition& definition = *destinations.getZelObject(i);
        overwrite(*definition.getProperties(), prefixOf(definition), keys);
    }
}

void CMaterialsImport::importOfGround()
{
    TZelObjectMgr<IZelGround>& destinations = *mDestination.getGrounds();
    TZelObjectMgr<IZelGround>& sources = *mSource.getGrounds();
    if (destinations.getNbObjects() == 0 || sources.getNbObjects() == 0)
        return;
    IZelProperty& destination = *destinations.getZelObject(0)->getProperty();
    IZelProperty& source = *sources.getZelObject(0)->getProperty();
    if (CNameOf()(destination) == CNameOf()(source))
        destination.copyFrom(&source);
}

} // namespace OvZel
