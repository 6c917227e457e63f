#include "animation/CZelScenarioTimeGuide.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CZelScenarioTimeGuide::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddInteger("Time", mTime);
}

void CZelScenarioTimeGuide::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mTime = in.GetInteger("Time");
}

} // namespace OvZel
