#include "import/CInstancesImport.h"

#include "import/componentLevels.h"

#include <zel/IZelMgr.h>

namespace OvZel {

namespace {

/// The classes that have a default layer.
constexpr const char* kClasses[] = {"ModelObject",    "Billboard", "ZelObject",
                                    "AnimatedObject", "3DPlant",   "LightObject"};

} // namespace

CInstancesImport::CInstancesImport(IZelMgr& destination, IZelMgr& source,
                                   CAnimationImport& animation)
    : mDestination(destination), mSource(source), mAnimation(animation),
      mSourceInfo(*source.getLayerInfo()), mDestinationInfo(*destination.getLayerInfo()),
      mIsLevelZero(endsAtLevelZero(source)), mSourceLayers(*source.getLayers()),
      mDestinationLayers(*destination.getLayers())
{
    TZelObjectMgr<IZelObjectInstance>& instances = *source.getObjectInstances();
    for (std::int32_t i = 0; i < instances.getNbObjects(); ++i) {
        IZelObjectInstance* instance = instances.getZelObject(i);
        mLastOfId[CIdOf()(*instance)] = instance;
    }
}

void CInstancesImport::importInstances()
{
    TZelObjectMgr<IZelObjectInstance>& instances = *mSource.getObjectInstances();
    const std::int32_t count = instances.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i)
        importInstance(*instances.getZelObject(i));
}

void CInstancesImport::importInstance(IZelObjectInstance& source)
{
    const CPlace place = placeOf(source);
    if (!isImported(source))
        return;
    const CZelUUID layerId = place.layer != nullptr ? CIdOf()(*place.layer) : CZelUUID();
    IZelObjectInstance* partner = nullptr;
    if (place.wasThere)
        partner = findPartner(CIdOf()(source), layerId);
    if (place.layer != nullptr)
        takeDefaults(layerId);
    if (place.wasThere)
        source.setLayerId(layerId);

    const TCopy<IZelObjectInstance> copy = copyThroughXML(source, [&] {
        return partner != nullptr ? partner : mDestination.getObjectInstances()->newZelObject(-1);
    });
    if (!copy.isComplete)
        return;
    detach(*copy.object, source);
    copy.object->setLayerId(place.layer != nullptr ? layerId : defaultLayerOf(*copy.object));
    mAnimation.bring(CIdOf()(*copy.object));
}

CInstancesImport::CPlace CInstancesImport::placeOf(const IZelObjectInstance& source)
{
    IZelLayer* layer = mSourceLayers.find(source.getLayerId());
    if (layer == nullptr)
        return {};
    if (IZelLayer* partner = mDestinationLayers.find(CNameOf()(*layer)))
        return {partner, true};
    return {copyToNew(*layer, *mDestination.getLayers()).object, false};
}

bool CInstancesImport::isImported(const IZelObjectInstance& source) const
{
    return source.asBBObjectInstance() != nullptr || source.asZelObjectInstance() != nullptr ||
           (source.asInternalComponentInstance() != nullptr && !mIsLevelZero);
}

IZelObjectInstance* CInstancesImport::findPartner(const CZelUUID& id, const CZelUUID& layerId)
{
    TZelObjectMgr<IZelObjectInstance>& instances = *mDestination.getObjectInstances();
    for (; mNbSeen < instances.getNbObjects(); ++mNbSeen) {
        IZelObjectInstance& instance = *instances.getZelObject(mNbSeen);
        mPartners[{CIdOf()(instance), instance.getLayerId()}] = mNbSeen;
    }
    const auto found = mPartners.find({id, layerId});
    return found != mPartners.end() ? instances.getZelObject(found->second) : nullptr;
}

/// A layer that has one identifier in both documents keeps its part as active or default layer.
void CInstancesImport::takeDefaults(const CZelUUID& layerId)
{
    if (layerId == mSourceInfo.getActiveLayer())
        mDestinationInfo.setActiveLayer(layerId);
    if (layerId.isNull())
        return;
    for (const char* objectClass : kClasses)
        if (layerId == mSourceInfo.getDefaultLayer(objectClass))
            mDestinationInfo.setDefaultLayer(objectClass, layerId);
}

/// An instance that stood on the exporter's top level must not keep a link into the other document.
void CInstancesImport::detach(IZelObjectInstance& copy, const IZelObjectInstance& source) const
{
    const auto found = mLastOfId.find(source.getAttachId());
    if (found == mLastOfId.end() || !mIsLevelZero ||
        found->second->asInternalComponentInstance() == nullptr)
        return;
    copy.setAttachId(CZelUUID());
    copy.setTriangleId(-1);
}

const CZelUUID& CInstancesImport::defaultLayerOf(const IZelObjectInstance& copy) const
{
    const CZelUUID& layer = mDestinationInfo.getDefaultLayer(copy.getClass());
    return layer.isNull() ? mDestinationInfo.getActiveLayer() : layer;
}

void CInstancesImport::importGround()
{
    TZelObjectMgr<IZelGround>& sources = *mSource.getGrounds();
    if (sources.getNbObjects() == 0 || !sources.getZelObject(0)->getActive())
        return;
    TZelObjectMgr<IZelGround>& grounds = *mDestination.getGrounds();
    copyThroughXML(*sources.getZelObject(0), [&] {
        return grounds.getNbObjects() > 0 ? grounds.getZelObject(0) : grounds.newZelObject(-1);
    });
}

} // namespace OvZel
