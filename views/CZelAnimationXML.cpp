#include "views/CZelAnimation.h"

#include "xml/listXML.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelAnimation::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Animation");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelAnimation::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Animation")));
    return true;
}

void CZelAnimation::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", mName.c_str());
    addItems(io, out.ReuseElement("Camera.Paths"), "Camera.Path", *mPaths);
    mViewOptions.addTo(io, CZelXMLAdd(out.AddElement("Options")));
    out.AddInteger("Current", mCurrentPath);
}

void CZelAnimation::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mName = in.GetAttributeLanguage("Name");
    getRequiredItems(io, in, "Camera.Paths", "Camera.Path", *mPaths);
    mViewOptions.getFrom(io, CZelXMLGet(in.GetElement("Options")));
    setCurrentPath(in.GetInteger("Current")); // behind the paths, which it counts
}

} // namespace OvZel
