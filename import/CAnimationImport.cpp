#include "import/CAnimationImport.h"

#include <zel/IZelMgr.h>

namespace OvZel {

namespace {

IZelScenario* firstScenario(IZelMgr& document)
{
    TZelObjectMgr<IZelScenario>& scenarios = *document.getScenarios();
    return scenarios.getNbObjects() > 0 ? scenarios.getZelObject(0) : nullptr;
}

} // namespace

CAnimationImport::CAnimationImport(IZelMgr& destination, IZelMgr& source)
    : mDestination(destination), mSourceScenario(firstScenario(source)),
      mSourcePaths(*source.get3DPaths()), mPaths(*destination.get3DPaths())
{
    if (mSourceScenario != nullptr)
        mSourceElements.emplace(*mSourceScenario->getAnimatedElements());
}

void CAnimationImport::bring(const CZelUUID& id)
{
    IZelAnimatedElement* source = mSourceElements ? mSourceElements->find(id) : nullptr;
    if (source == nullptr)
        return;
    IZelAnimatedElement& destination = destinationElement(id);
    mergeValues(destination, *source);
    destination.setId(source->getId());
    destination.setElementType(source->getElementType());
}

IZelScenario& CAnimationImport::destinationScenario()
{
    IZelScenario* scenario = firstScenario(mDestination);
    if (scenario == nullptr)
        scenario = mDestination.getScenarios()->newZelObject(0);
    OvThrow::IfNULL(scenario);
    return *scenario;
}

IZelAnimatedElement& CAnimationImport::destinationElement(const CZelUUID& id)
{
    TZelObjectMgr<IZelAnimatedElement>& elements = *destinationScenario().getAnimatedElements();
    if (!mDestinationElements)
        mDestinationElements.emplace(elements);
    IZelAnimatedElement* element = mDestinationElements->find(id);
    if (element == nullptr)
        element = elements.newZelObject(-1);
    OvThrow::IfNULL(element);
    return *element;
}

void CAnimationImport::mergeValues(IZelAnimatedElement& destination, IZelAnimatedElement& source)
{
    TMerger<IZelInterpolatedValue, CChannelOf> merger(*destination.getInterpolatedValues());
    TZelObjectMgr<IZelInterpolatedValue>& values = *source.getInterpolatedValues();
    const std::int32_t count = values.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i) {
        IZelInterpolatedValue& value = *values.getZelObject(i);
        if (!value.getPathId().isNull())
            bringPath(value.getPathId());
        merger.merge(value);
    }
}

void CAnimationImport::bringPath(const CZelUUID& id)
{
    if (!mBrought.insert(id).second)
        return;
    if (IZel3DPath* path = mSourcePaths.find(id))
        mPaths.merge(*path);
}

} // namespace OvZel
