#include "environment/CZelGrainFilter.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelGrainFilter::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Grain.Filter"));
    addTo(io, out);
    return out.element();
}

bool CZelGrainFilter::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Grain.Filter")));
    return true;
}

void CZelGrainFilter::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddDouble("Brightness", mBrightness);
    out.AddDouble("Size", mSize);
}

void CZelGrainFilter::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mBrightness = in.GetDouble("Brightness");
    mSize = in.GetDouble("Size");
}

} // namespace OvZel
