#include "environment/CBackground.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr CZelLabel kImageTypes[] = {
    {"None", 0}, {"Stretched", 1}, {"3D", 2}, {"Motif", 3}, {"QTVRCubic", 4}, {nullptr, 0},
};
constexpr CZelLabel kColorTypes[] = {
    {"None", 0}, {"Uniform", 1}, {"Graduated", 2}, {"Graduated.Line", 3}, {nullptr, 0},
};

} // namespace

XIXMLElement* CBackground::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd parent(element);
    parent.DestroyElements("Backgroung"); // sic, in older files
    const CZelXMLAdd out(parent.ReuseElement("Background"));
    addTo(io, out);
    return out.element();
}

bool CBackground::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLGet parent(element);
    XIXMLElement* found = parent.FindElement("Backgroung"); // sic, in older files
    getFrom(io, CZelXMLGet(found != nullptr ? found : parent.GetElement("Background")));
    return true;
}

void CBackground::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Image.Type", kImageTypes, mImageType);
    out.AddAttributeLabel("Color.Type", kColorTypes, mColorType);
    out.AddColor("Color", mColor);
    out.AddColor("Second.Color", mSecondColor);
    out.AddCoord3D("Up.Direction", mUpDirection);
    out.AddDouble("Line.Power", mLinePower);
    out.AddText("URL", mURL.c_str());
    out.AddDouble("Origin", mOrigin);
    out.AddBoolean("Use.Default", mUseDefault);
    out.AddDouble("Direction.Angle", mDirectionAngle);
}

void CBackground::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mImageType = in.GetAttributeLabel("Image.Type", kImageTypes);
    mColorType = in.GetAttributeLabel("Color.Type", kColorTypes);
    mColor = in.GetColor("Color");
    mSecondColor = in.GetColor("Second.Color");
    mUpDirection = in.GetVector("Up.Direction", io.getMgrRef());
    setLinePower(in.GetDouble("Line.Power"));
    mURL = in.GetText("URL");
    mOrigin = in.GetDouble("Origin");
    mUseDefault = in.IsElement("Use.Default");
    mDirectionAngle = in.GetDouble("Direction.Angle");
}

} // namespace OvZel
