#include "environment/CZelFog.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelFog::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Fog"));
    addTo(io, out);
    return out.element();
}

bool CZelFog::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Fog")));
    return true;
}

void CZelFog::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddColor("Color", mColor);
    out.AddDouble("Density", mDensity);
    out.AddDouble("Start.Distance", mStartDistance);
    out.AddDouble("End.Distance", mEndDistance);
    out.AddDouble("Altitude", mAltitude);
}

void CZelFog::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mColor = in.GetColor("Color");
    mDensity = in.GetDouble("Density");
    mStartDistance = in.GetDouble("Start.Distance");
    mEndDistance = in.GetDouble("End.Distance");
    mAltitude = in.GetDouble("Altitude");
}

} // namespace OvZel
