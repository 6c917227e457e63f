#include "environment/CZelFilters.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelFilters::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Filters"));
    addTo(io, out);
    return out.element();
}

bool CZelFilters::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Filters")));
    return true;
}

void CZelFilters::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    mImageSettingsFilter->addTo(io, CZelXMLAdd(out.AddElement("Image.Settings.Filter")));
    mGrainFilter->addTo(io, CZelXMLAdd(out.AddElement("Grain.Filter")));
    mVignettingFilter->addTo(io, CZelXMLAdd(out.AddElement("Vignetting.Filter")));
    mExposureFilter->addTo(io, CZelXMLAdd(out.AddElement("Exposure.Filter")));
    mHatchingFilter->addTo(io, CZelXMLAdd(out.AddElement("Hatching.Filter")));
}

void CZelFilters::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (XIXMLElement* found = in.FindElement("Image.Settings.Filter"))
        mImageSettingsFilter->getFrom(io, CZelXMLGet(found));
    if (XIXMLElement* found = in.FindElement("Grain.Filter"))
        mGrainFilter->getFrom(io, CZelXMLGet(found));
    if (XIXMLElement* found = in.FindElement("Vignetting.Filter"))
        mVignettingFilter->getFrom(io, CZelXMLGet(found));
    if (XIXMLElement* found = in.FindElement("Exposure.Filter"))
        mExposureFilter->getFrom(io, CZelXMLGet(found));
    if (XIXMLElement* found = in.FindElement("Hatching.Filter"))
        mHatchingFilter->getFrom(io, CZelXMLGet(found));
}

} // namespace OvZel
