#include "import/CLightsImport.h"

#include <zel/IZelMgr.h>

#include <cstring>

namespace OvZel {

CLightsImport::CLightsImport(IZelMgr& destination, IZelMgr& source, CAnimationImport& animation)
    : mDestination(destination), mSource(source), mAnimation(animation),
      mSourceGroups(*source.getLightsGroups()), mDestinationGroups(*destination.getLightsGroups()),
      mSourceHeliodons(*source.getHeliodons()), mDestinationHeliodons(*destination.getHeliodons())
{
}

void CLightsImport::importLights()
{
    mergeByName(*mDestination.getLights(), *mSource.getLights(), [&](IZelLight& light, IZelLight&) {
        bringGroups(*light.getLightsGroups());
        mAnimation.bring(CIdOf()(light));
    });
}

void CLightsImport::importHeliodons()
{
    mergeByName(
        *mDestination.getHeliodons(), *mSource.getHeliodons(),
        [&](IZelHeliodon& heliodon, IZelHeliodon&) { mAnimation.bring(CIdOf()(heliodon)); });
}

void CLightsImport::bringGroups(TZelObjectMgr<CZelUUID>& ids)
{
    const std::int32_t count = ids.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i)
        bringGroup(*ids.getZelObject(i));
}

void CLightsImport::bringGroup(const CZelUUID& id)
{
    IZelLightsGroup* source = mSourceGroups.find(id);
    if (source == nullptr)
        return;
    IZelLightsGroup* destination = mDestinationGroups.find(id);
    if (destination == nullptr) {
        copyToNew(*source, *mDestination.getLightsGroups());
        return;
    }
    const char* name = source->getBasicData()->getName();
    if (std::strcmp(destination->getBasicData()->getName(), name) != 0)
        destination->getBasicData()->setName(name);
}

void CLightsImport::bringHeliodon(const char* name)
{
    if (*name == '\0' || mDestinationHeliodons.find(name) != nullptr)
        return;
    IZelHeliodon* source = mSourceHeliodons.find(name);
    if (source == nullptr)
        return;
    const TCopy<IZelHeliodon> copy = copyToNew(*source, *mDestination.getHeliodons());
    if (copy.isComplete)
        mAnimation.bring(CIdOf()(*copy.object));
}

} // namespace OvZel
