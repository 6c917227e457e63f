#include "views/CZelCameraLight.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelCameraLight::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement(tag());
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelCameraLight::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement(tag())));
    return true;
}

void CZelCameraLight::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddColor("Color", mColor);
    out.AddDouble("Power", mPower);
}

void CZelCameraLight::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mColor = in.GetColor("Color");
    mPower = in.GetDouble("Power");
}

} // namespace OvZel
