#include "environment/CZelClouds.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelClouds::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Clouds"));
    addTo(io, out);
    return out.element();
}

bool CZelClouds::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Clouds")));
    return true;
}

void CZelClouds::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddDouble("Cumulus.Size", mCumulusSize);
    out.AddInteger("Cumulus.Seed", mCumulusSeed);
    out.AddDouble("Cirrus.Size", mCirrusSize);
    out.AddInteger("Cirrus.Seed", mCirrusSeed);
    out.AddDouble("Stratus.Size", mStratusSize);
    out.AddInteger("Stratus.Seed", mStratusSeed);
    out.AddDouble("Cirrocumulus.Size", mCirrocumulusSize);
    out.AddInteger("Cirrocumulus.Seed", mCirrocumulusSeed);
    out.AddBoolean("Active.Wind", mActiveWind);
    out.AddDouble("Wind.Speed", mWindSpeed);
    out.AddDouble("Wind.Direction", mWindDirection);
}

void CZelClouds::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mCumulusSize = in.GetDouble("Cumulus.Size");
    mCumulusSeed = in.GetInteger("Cumulus.Seed");
    mCirrusSize = in.GetDouble("Cirrus.Size");
    mCirrusSeed = in.GetInteger("Cirrus.Seed");
    mStratusSize = in.GetDouble("Stratus.Size");
    mStratusSeed = in.GetInteger("Stratus.Seed");
    mCirrocumulusSize = in.GetDouble("Cirrocumulus.Size");
    mCirrocumulusSeed = in.GetInteger("Cirrocumulus.Seed");
    mActiveWind = in.IsElement("Active.Wind");
    if (in.IsElement("Wind.Speed"))
        mWindSpeed = in.GetDouble("Wind.Speed");
    if (in.IsElement("Wind.Direction"))
        mWindDirection = in.GetDouble("Wind.Direction");
}

} // namespace OvZel
