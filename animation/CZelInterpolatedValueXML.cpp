#include "animation/CZelInterpolatedValue.h"

#include "animation/channels.h"
#include "xml/listXML.h"
#include "xml/readWhileItLasts.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelInterpolatedValue::addXML(CZelXMLIO& io,
                                                       OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Interpolated.Value");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelInterpolatedValue::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Interpolated.Value")));
    return true;
}

void CZelInterpolatedValue::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Type", kChannels, mChannel);
    out.AddBoolean("Loop", mLoop);
    out.AddInteger("Nb.Loops", mNbLoops);
    out.AddUUID("Path.Id", mPathId);
    const CZelXMLAdd defaultValue(out.ReuseElement("Default.Value"));
    mDefaultValue->addTo(io, CZelXMLAdd(defaultValue.AddElement("KeyFrame")));
    addItems(io, out.ReuseElement("KeyFrames"), "KeyFrame", *mKeyFrames);
}

void CZelInterpolatedValue::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mChannel = in.GetAttributeLabel("Type", kChannels);
    mLoop = in.IsElement("Loop");
    readWhileItLasts([&] {
        mPathId = in.GetUUID("Path.Id");
        mNbLoops = in.GetInteger("Nb.Loops");
    });
    if (OrvaneXML::XIXMLElement* defaultValue = in.FindElement("Default.Value"))
        if (OrvaneXML::XIXMLElement* keyFrame = CZelXMLGet(defaultValue).FindElement("KeyFrame"))
            mDefaultValue->getFrom(io, CZelXMLGet(keyFrame));
    getOptionalItems(io, in, "KeyFrames", "KeyFrame", *mKeyFrames);
}

} // namespace OvZel
