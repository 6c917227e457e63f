#include "objects/CZelAnimatedObjectInstance.h"

#include "objects/renewed.h"
#include "xml/readWhileItLasts.h"

namespace OvZel {

CZelAnimatedObjectInstance::CZelAnimatedObjectInstance(CZelObjectInstance& owner, CZelXMLIO& io,
                                                       const CZelXMLGet& data)
    : CZelZelObjectInstance(owner, io, data)
{
    // A new instance has nothing to read; that is no failure.
    readWhileItLasts([&] {
        mCurrentFrame = data.GetInteger("Current.Frame");
        mCurrentTake = data.GetInteger("Current.Take");
        mRealDuration = data.GetInteger("Real.Duration");
        mStartFrame = data.GetInteger("Start.Frame");
    });
    if (data.IsElement("Overloaded.Properties"))
        mOverloadedProperties.getItems(io, data.GetElement("Overloaded.Properties"), "Property",
                                       &instance());
}

void CZelAnimatedObjectInstance::save(CZelXMLIO& io, const CZelXMLAdd& data)
{
    CZelZelObjectInstance::save(io, data);
    data.AddInteger(renewed(data, "Current.Frame"), mCurrentFrame);
    data.AddInteger(renewed(data, "Current.Take"), mCurrentTake);
    data.AddInteger(renewed(data, "Real.Duration"), mRealDuration);
    data.AddInteger(renewed(data, "Start.Frame"), mStartFrame);
    mOverloadedProperties.addItems(io, data.ReuseElement("Overloaded.Properties"), "Property");
}

} // namespace OvZel
