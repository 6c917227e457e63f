#include "environment/CZelImageSettingsFilter.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelImageSettingsFilter::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Image.Settings.Filter"));
    addTo(io, out);
    return out.element();
}

bool CZelImageSettingsFilter::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Image.Settings.Filter")));
    return true;
}

void CZelImageSettingsFilter::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddBoolean("Use.Mix.Color", mUseMixColor);
    out.AddDouble("Brightness", mBrightness);
    out.AddDouble("Contrast", mContrast);
    out.AddDouble("Saturation", mSaturation);
    out.AddColor("Mix.Color", mMixColor);
}

void CZelImageSettingsFilter::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mUseMixColor = in.IsElement("Use.Mix.Color");
    mBrightness = in.GetDouble("Brightness");
    mContrast = in.GetDouble("Contrast");
    mSaturation = in.GetDouble("Saturation");
    mMixColor = in.GetColor("Mix.Color");
}

} // namespace OvZel
