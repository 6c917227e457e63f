#include "environment/CZelHatchingFilter.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelHatchingFilter::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Hatching.Filter"));
    addTo(io, out);
    return out.element();
}

bool CZelHatchingFilter::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Hatching.Filter")));
    return true;
}

void CZelHatchingFilter::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddBoolean("Use.Transparency", mUseTransparency);
    out.AddDouble("Intensity.Threshold", mIntensityThreshold);
    out.AddDouble("Contour.Threshold", mContourThreshold);
    out.AddDouble("Transparency", mTransparency);
}

void CZelHatchingFilter::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mUseTransparency = in.IsElement("Use.Transparency");
    mIntensityThreshold = in.GetDouble("Intensity.Threshold");
    mContourThreshold = in.GetDouble("Contour.Threshold");
    mTransparency = in.GetDouble("Transparency");
}

} // namespace OvZel
