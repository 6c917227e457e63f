#include "environment/CZelVignettingFilter.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelVignettingFilter::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Vignetting.Filter"));
    addTo(io, out);
    return out.element();
}

bool CZelVignettingFilter::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Vignetting.Filter")));
    return true;
}

void CZelVignettingFilter::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddDouble("Value", mValue);
}

void CZelVignettingFilter::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mValue = in.GetDouble("Value");
}

} // namespace OvZel
