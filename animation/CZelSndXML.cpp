#include "animation/CZelSnd.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CZelSnd::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddInteger("Start.Frame", mStartFrame);
    out.AddUUID("UUID", mId);
    out.AddText("URL", mURL.c_str());
}

void CZelSnd::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mStartFrame = in.GetInteger("Start.Frame");
    mId = in.GetUUID("UUID");
    if (in.IsElement("URL"))
        mURL = in.GetText("URL");
}

} // namespace OvZel
