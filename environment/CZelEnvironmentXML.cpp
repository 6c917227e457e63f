#include "environment/CZelEnvironment.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

/// The element that holds the tags of the fog: the environment, or a child "Fog", or null. One of
/// them, which every fog has, tells.
XIXMLElement* findFog(const CZelXMLGet& in)
{
    if (in.IsElement("Density"))
        return in.element();
    XIXMLElement* fog = in.FindElement("Fog");
    return fog != nullptr && CZelXMLGet(fog).IsElement("Density") ? fog : nullptr;
}

} // namespace

XIXMLElement* CZelEnvironment::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Environment"));
    addTo(io, out);
    return out.element();
}

bool CZelEnvironment::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Environment")));
    return true;
}

void CZelEnvironment::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", mId);
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", mName.c_str());
    mFog.addTo(io, out); // its tags stand here, without an element of its own
    mClouds.addTo(io, CZelXMLAdd(out.AddElement("Clouds")));
    mBackgroundPicture.addTo(io, CZelXMLAdd(out.AddElement("Background.Picture")));
    mForeground.addTo(io, CZelXMLAdd(out.AddElement("Foregroung"))); // sic
}

void CZelEnvironment::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mId = in.GetUUID("UUID");
    mName = in.GetAttributeLanguage("Name");
    if (XIXMLElement* fog = findFog(in))
        mFog.getFrom(io, CZelXMLGet(fog));
    if (XIXMLElement* clouds = in.FindElement("Clouds"))
        mClouds.getFrom(io, CZelXMLGet(clouds));
    if (XIXMLElement* picture = in.FindElement("Background.Picture"))
        mBackgroundPicture.getFrom(io, CZelXMLGet(picture));
    if (XIXMLElement* foreground = in.FindElement("Foregroung")) // sic
        mForeground.getFrom(io, CZelXMLGet(foreground));
}

} // namespace OvZel
