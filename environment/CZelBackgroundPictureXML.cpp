#include "environment/CZelBackgroundPicture.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr CZelLabel kTypes[] = {
    {"None", 0},       {"User.Gradiant", 1},                                // sic
    {"Picture.2D", 2}, {"Movie.3D", 3},      {"User.Gradiant.4.Colors", 4}, // sic
    {"HDRI", 5},       {nullptr, 0},
};

} // namespace

XIXMLElement* CZelBackgroundPicture::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Background.Picture"));
    addTo(io, out);
    return out.element();
}

bool CZelBackgroundPicture::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Background.Picture")));
    return true;
}

void CZelBackgroundPicture::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Type", kTypes, mType);
    out.AddText("URL", mURL.c_str());
    out.AddColor("First.Color", mFirstColor);
    out.AddColor("Second.Color", mSecondColor);
    out.AddColor("Third.Color", mThirdColor);
    out.AddColor("Fourth.Color", mFourthColor);
    out.AddBoolean("3D", mIs3D);
    out.AddDouble("H.Offset", mHOffset);
    out.AddDouble("V.Offset", mVOffset);
    out.AddBoolean("Lighting.Flag", mLightingFlag);
    out.AddDouble("Lighting.Intensity", mLightingIntensity);
    out.AddDouble("Background.Intensity", mBackgroundIntensity);
    out.AddDouble("Horizontal.Roll", mHorizontalRoll);
    out.AddDouble("Width", mWidth);
    out.AddDouble("Height", mHeight);
    out.AddBoolean("Keep.Proportions", mKeepProportions);
}

void CZelBackgroundPicture::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mURL = in.GetText("URL");
    mFirstColor = in.GetColor("First.Color");
    mSecondColor = in.GetColor("Second.Color");
    mThirdColor = in.GetColor("Third.Color");
    if (in.IsElement("Fourth.Color"))
        mFourthColor = in.GetColor("Fourth.Color");
    mIs3D = in.IsElement("3D");
    mType = in.GetAttributeLabel("Type", kTypes);
    mHOffset = in.GetDouble("H.Offset");
    mVOffset = in.GetDouble("V.Offset");
    mLightingFlag = in.IsElement("Lighting.Flag");
    if (in.IsElement("Lighting.Intensity"))
        mLightingIntensity = in.GetDouble("Lighting.Intensity");
    if (in.IsElement("Background.Intensity"))
        mBackgroundIntensity = in.GetDouble("Background.Intensity");
    if (in.IsElement("Horizontal.Roll"))
        mHorizontalRoll = in.GetDouble("Horizontal.Roll");
    mWidth = in.GetDouble("Width");
    mHeight = in.GetDouble("Height");
    mKeepProportions = in.IsElement("Keep.Proportions");
}

} // namespace OvZel
