#include "environment/CZelForeground.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

XIXMLElement* CZelForeground::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Foregroung"));
    addTo(io, out);
    return out.element();
}

bool CZelForeground::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Foregroung")));
    return true;
}

void CZelForeground::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddText("URL", mURL.c_str());
    out.AddDouble("Position.X", mPositionX);
    out.AddDouble("Position.Y", mPositionY);
    out.AddDouble("Size.X", mSizeX);
    out.AddDouble("Size.Y", mSizeY);
    out.AddUUID("Id", mImageId);
    out.AddDouble("Intensity", mIntensity);
    out.AddBoolean("Keep.Proportions", mKeepProportions);
}

void CZelForeground::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mURL = in.GetText("URL");
    mPositionX = in.GetDouble("Position.X");
    mPositionY = in.GetDouble("Position.Y");
    if (in.IsElement("Size.X"))
        mSizeX = in.GetDouble("Size.X");
    if (in.IsElement("Size.Y"))
        mSizeY = in.GetDouble("Size.Y");
    // The attribute counts only beside a child of its name, which we never write: so it is in the
    // files that exist, and readers in the field rely on both sides.
    if (in.IsElement("Id"))
        mImageId = in.GetUUID("Id");
    if (in.IsElement("Intensity"))
        mIntensity = in.GetDouble("Intensity");
    mKeepProportions = in.IsElement("Keep.Proportions");
}

} // namespace OvZel
