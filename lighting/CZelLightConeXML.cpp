#include "lighting/CZelLightCone.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CZelLightCone::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddDouble("Power", mPower);
}

void CZelLightCone::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mPower = in.GetDouble("Power");
}

} // namespace OvZel
