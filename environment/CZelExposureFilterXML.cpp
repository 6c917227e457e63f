#include "environment/CZelExposureFilter.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelExposureFilter::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Exposure.Filter"));
    addTo(io, out);
    return out.element();
}

bool CZelExposureFilter::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Exposure.Filter")));
    return true;
}

void CZelExposureFilter::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddDouble("Exposure", mExposure);
    out.AddDouble("Size", mSize);
}

void CZelExposureFilter::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mExposure = in.GetDouble("Exposure");
    mSize = in.GetDouble("Size");
}

} // namespace OvZel
