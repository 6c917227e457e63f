#include "lighting/CSkylight.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

namespace {

constexpr CZelLabel kSkyTypes[] = {{"Automatic", 0}, {"User", 1}, {nullptr, 0}};
constexpr CZelLabel kSkyKinds[] = {{"Physical", 0}, {"Vendralis5Sky", 1}, {nullptr, 0}};

} // namespace

void CSkylight::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddDouble("Factor", mFactor);
    out.AddColor("Color", mColor);
    out.AddAttributeLabel("Sky.Type", kSkyTypes, mSkyType);
    out.AddBoolean("Background", mBackground);
    out.AddDouble("Pollution", mPollution);
    out.AddBoolean("Sky.Mix.Color.Flag", mSkyMixColorFlag);
    out.AddColor("Sky.Mix.Color", mSkyMixColor);
    out.AddBoolean("Power.Flag", mPowerFlag);
    out.AddBoolean("Sky.Color.Flag", mSkyColorFlag);
    out.AddDouble("Sky.Saturation", mSkySaturation);
    out.AddAttributeLabel("Sky.Kind", kSkyKinds, mSkyKind);
    out.AddDouble("Sky.Exposure", mSkyExposure);
}

void CSkylight::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mFactor = in.GetDouble("Factor");
    mColor = in.GetColor("Color");
    if (in.GetOptionalAttribute("Sky.Type") != nullptr)
        mSkyType = in.GetAttributeLabel("Sky.Type", kSkyTypes);
    mBackground = in.IsElement("Background");
    mPollution = in.GetDouble("Pollution");
    mSkyMixColorFlag = in.IsElement("Sky.Mix.Color.Flag");
    mSkyMixColor = in.GetColor("Sky.Mix.Color");
    mPowerFlag = in.IsElement("Power.Flag");
    mSkyColorFlag = in.IsElement("Sky.Color.Flag");
    if (in.IsElement("Sky.Saturation"))
        mSkySaturation = in.GetDouble("Sky.Saturation");
    if (in.GetOptionalAttribute("Sky.Kind") != nullptr)
        mSkyKind = in.GetAttributeLabel("Sky.Kind", kSkyKinds);
    if (in.IsElement("Sky.Exposure"))
        mSkyExposure = in.GetDouble("Sky.Exposure");
}

} // namespace OvZel
