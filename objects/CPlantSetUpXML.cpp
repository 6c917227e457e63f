#include "objects/CPlantSetUp.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CPlantSetUp::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDate("StartTime", mStartTime);
    out.AddDate("EndTime", mEndTime);
    out.AddAttributeLabel("Color", kPlantColors, mColor);
    out.AddUUID("Id", mId);
}

void CPlantSetUp::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    in.GetDate("StartTime", mStartTime);
    in.GetDate("EndTime", mEndTime);
    mColor = in.GetAttributeLabel("Color", kPlantColors);
    mId = in.GetUUID("Id");
}

} // namespace OvZel
