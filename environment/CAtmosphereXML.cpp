#include "environment/CAtmosphere.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CAtmosphere::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Atmosphere"));
    addTo(io, out);
    return out.element();
}

bool CAtmosphere::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Atmosphere")));
    return true;
}

void CAtmosphere::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddColor("Color", mColor);
    out.AddDouble("Density.High", mHighDensity);
    out.AddDouble("Density.Medium", mMediumDensity);
    out.AddDouble("Density.Low", mLowDensity);
    out.AddDouble("Scale", mScale);
    out.AddDouble("Distance.Minimum", mMinDistance);
    out.AddDouble("Distance.Maximum", mMaxDistance);
    out.AddDouble("Noise", mNoise);
    out.AddBoolean("Use.Default", mUseDefault);
}

void CAtmosphere::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mColor = in.GetColor("Color");
    setHighDensity(in.GetDouble("Density.High"));
    setMediumDensity(in.GetDouble("Density.Medium"));
    setLowDensity(in.GetDouble("Density.Low"));
    setScale(in.GetDouble("Scale"));
    mMinDistance = in.GetDouble("Distance.Minimum");
    setMaxDistance(in.GetDouble("Distance.Maximum"));
    setNoise(in.GetDouble("Noise"));
    mUseDefault = in.IsElement("Use.Default");
}

} // namespace OvZel
