#include "lighting/CHeliodon.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr CZelLabel kPlacementKinds[] = {
    {"Manual", 0}, {"45.Degree", 1}, {"Date.And.Place", 2}, {nullptr, 0}};
constexpr CZelLabel kColorTypes[] = {{"Automatic", 0}, {"User", 1}, {nullptr, 0}};

} // namespace

XIXMLElement* CHeliodon::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Heliodon"));
    addTo(io, out);
    return out.element();
}

bool CHeliodon::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Heliodon")));
    return true;
}

void CHeliodon::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddDate("Time", mTime);
    out.AddPlace(mPlace);
    out.AddDouble("Sunshine", mSunshine);
    out.AddDouble("North.Angle", mNorthAngle);
    out.AddDouble("Theta", mTheta);
    out.AddDouble("Phi", mPhi);
    out.AddBoolean("Shadow", mShadow);
    out.AddDouble("Shadow.Power", mShadowPower);
    out.AddInteger("Sun.Blur", mShadowBlur);
    out.AddBoolean("Global.Illumination", mGlobalIllumination);
    out.AddDouble("Global.Illumination.Power", mGlobalIlluminationPower);
    out.AddInteger("Global.Illumination.Quality", mGlobalIlluminationQuality);
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    mLensFlare.addTo(io, CZelXMLAdd(out.AddElement("Lens.Flare")));
    mGodRays.addTo(io, CZelXMLAdd(out.AddElement("God.Rays")));
    out.AddBoolean("Colored", mColored);
    addColors(CZelXMLAdd(out.AddElement("Colors")));
    out.AddBoolean("Sun.PowerFlag", mSunPowerFlag);
    out.AddBoolean("Radiosity", mRadiosity);
    out.AddDouble("Cloud.Coverage", mCloudCoverage);
    out.AddBoolean("Cloud.Mask.Sun", mCloudMaskSun);
    mSkylight.addTo(io, CZelXMLAdd(out.AddElement("Sky.Light")));
    mClouds->addTo(io, CZelXMLAdd(out.AddElement("Clouds")));
    mFog->addTo(io, CZelXMLAdd(out.AddElement("Fog")));
    out.AddUUID("UUID", *getId());
    out.AddAttributeLabel("Placement.Kind", kPlacementKinds, mPlacementKind);
    out.AddAttributeLabel("Color.Type", kColorTypes, mColorType);
    if (getUIValue() != 0)
        out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
    out.AddDouble("Saturation", mSaturation);
}

void CHeliodon::addColors(const CZelXMLAdd& out) const
{
    for (const CZelColor& color : mColors)
        out.AddColor("Sun.Color", color);
}

void CHeliodon::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    in.GetDate("Time", mTime);
    in.GetPlace(mPlace);
    mSunshine = in.GetDouble("Sunshine");
    setNorthAngle(in.GetDouble("North.Angle"));
    if (in.IsElement("Theta"))
        mTheta = in.GetDouble("Theta");
    if (in.IsElement("Phi"))
        mPhi = in.GetDouble("Phi");
    mShadow = in.IsElement("Shadow");
    mShadowPower = in.GetDouble("Shadow.Power");
    setShadowBlur(in.GetInteger("Sun.Blur")); // clipped, with the setter's warning
    mGlobalIllumination = in.IsElement("Global.Illumination");
    mGlobalIlluminationPower = in.GetDouble("Global.Illumination.Power");
    mGlobalIlluminationQuality = in.GetInteger("Global.Illumination.Quality");
    if (in.IsElement("Name"))
        getNamed(io, in);
    if (XIXMLElement* rays = in.FindElement("God.Rays"))
        mGodRays.getFrom(io, CZelXMLGet(rays));
    mSunPowerFlag = in.IsElement("Sun.PowerFlag");
    mRadiosity = in.IsElement("Radiosity");
    getSky(io, in);
    getAttributes(io, in);
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
    if (in.IsElement("Saturation"))
        mSaturation = in.GetDouble("Saturation");
}

/// These came into the format together: a file without the name has none of them.
void CHeliodon::getNamed(CZelXMLIO& io, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    mLensFlare.getFrom(io, CZelXMLGet(in.GetElement("Lens.Flare")));
    mColored = in.IsElement("Colored");
    getColors(CZelXMLGet(in.GetElement("Colors")));
}

void CHeliodon::getColors(const CZelXMLGet& in)
{
    XIXMLElement* child = in.FindElement("Sun.Color");
    for (CZelColor& color : mColors) {
        color = CZelXMLGet(child).GetColor();
        child = child->GetNextSame();
    }
}

void CHeliodon::getSky(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (XIXMLElement* sky = in.FindElement("Sky.Light"))
        mSkylight.getFrom(io, CZelXMLGet(sky));
    if (XIXMLElement* clouds = in.FindElement("Clouds"))
        mClouds->getFrom(io, CZelXMLGet(clouds));
    if (in.IsElement("Cloud.Coverage"))
        mCloudCoverage = in.GetDouble("Cloud.Coverage");
    mCloudMaskSun = in.IsElement("Cloud.Mask.Sun");
    if (XIXMLElement* fog = in.FindElement("Fog"))
        mFog->getFrom(io, CZelXMLGet(fog));
}

void CHeliodon::getAttributes(CZelXMLIO& io, const CZelXMLGet& in)
{
    getOptionalId(io, in);
    if (in.GetOptionalAttribute("Placement.Kind") != nullptr)
        mPlacementKind = in.GetAttributeLabel("Placement.Kind", kPlacementKinds);
    if (in.GetOptionalAttribute("Color.Type") != nullptr)
        mColorType = in.GetAttributeLabel("Color.Type", kColorTypes);
}

} // namespace OvZel
