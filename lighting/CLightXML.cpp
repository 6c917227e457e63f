#include "lighting/CLight.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr CZelLabel kTypes[] = {{"Point", 0}, {"Spot", 1}, {"Parallel", 2}, {nullptr, 0}};
constexpr CZelLabel kShadowTypes[] = {{"None", 0}, {"Traced", 1}, {"Soft", 2}, {nullptr, 0}};
constexpr CZelLabel kTargetTypes[] = {{"Fixed.Vertex", 0}, {"On.Object", 1}, {nullptr, 0}};

} // namespace

XIXMLElement* CLight::addXML(CZelXMLIO& io, XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Light"));
    addTo(io, out);
    return out.element();
}

bool CLight::getXML(CZelXMLIO& io, XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Light")));
    return true;
}

void CLight::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddAttributeLabel("Type", kTypes, mType);
    out.AddBoolean("Active", mActive);
    out.AddColor("Color", mColor);
    out.AddDouble("Power", mPower);
    out.AddDouble("Distance.Near", mDistanceNear);
    out.AddDouble("Distance.Far", mDistanceFar);
    out.AddCoord3D("Position", mPosition);
    out.AddCoord3D("Target", mTarget);
    out.AddDouble("Cone.Angle", mConeAngle);
    out.AddDouble("Sharpness", mSharpness);
    out.AddAttributeLabel("Shadow.Type", kShadowTypes, mShadowType);
    out.AddDouble("Shadow.Power", mShadowPower);
    out.AddInteger("Map.Size", mMapSize);
    out.AddDouble("Bias", mBias);
    out.AddBoolean("Global.Illumination", mGlobalIllumination);
    out.AddDouble("Global.Illumination.Power", mGlobalIlluminationPower);
    out.AddInteger("Global.Illumination.Quality", mGlobalIlluminationQuality);
    out.AddBoolean("Locked", mLocked);
    if (getUIValue() != 0)
        out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
    out.AddIdList("Lights.Groups", "Light", *mLightsGroups);
    mLensFlare.addTo(io, CZelXMLAdd(out.AddElement("Lens.Flare")));
    mLightCone.addTo(io, CZelXMLAdd(out.AddElement("Light.Cone")));
    out.AddBoolean("Radiosity", mRadiosity);
    out.AddUUID("UUID", *getId());
    out.AddUUID("Object.Id", mObjectId);
    out.AddAttributeLabel("Target.type", kTargetTypes, mTargetType);
    out.AddUUID("IES", mIES);
    out.AddText("IES.Url", mIESUrl.c_str());
}

void CLight::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    setName(in.GetAttributeLanguage("Name"));
    mType = in.GetAttributeLabel("Type", kTypes);
    mActive = in.IsElement("Active");
    mColor = in.GetColor("Color");
    mPower = kPower.clip(in.GetDouble("Power"));
    mDistanceNear = in.GetDouble("Distance.Near");
    mDistanceFar = in.GetDouble("Distance.Far");
    mPosition = in.GetPoint("Position", io.getMgrRef());
    mTarget = in.GetPoint("Target", io.getMgrRef());
    mConeAngle = kConeAngle.clip(in.GetDouble("Cone.Angle"));
    mSharpness = kSharpness.clip(in.GetDouble("Sharpness"));
    mShadowType = in.GetAttributeLabel("Shadow.Type", kShadowTypes);
    mShadowPower = kShadowPower.clip(in.GetDouble("Shadow.Power"));
    setMapSize(in.GetInteger("Map.Size"));
    mBias = kBias.clip(in.GetDouble("Bias"));
    mGlobalIllumination = in.IsElement("Global.Illumination");
    mGlobalIlluminationPower = in.GetDouble("Global.Illumination.Power");
    mGlobalIlluminationQuality = in.GetInteger("Global.Illumination.Quality");
    mLocked = in.IsElement("Locked");
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
    in.GetIdList("Lights.Groups", "Light", *mLightsGroups);
    mLensFlare.getFrom(io, CZelXMLGet(in.GetElement("Lens.Flare")));
    if (XIXMLElement* cone = in.FindElement("Light.Cone"))
        mLightCone.getFrom(io, CZelXMLGet(cone));
    mRadiosity = in.IsElement("Radiosity"); // absent is false; a new light has true
    getAttributes(io, in);
    // An element without text leaves the address alone.
    if (in.IsElement("IES.Url") && *in.GetText("IES.Url") != '\0')
        mIESUrl = in.GetText("IES.Url");
}

void CLight::getAttributes(CZelXMLIO& io, const CZelXMLGet& in)
{
    getOptionalId(io, in);
    if (in.GetOptionalAttribute("IES") != nullptr)
        mIES = in.GetUUID("IES");
    // "Object.Id" is asked for only behind a target type.
    const char* type = in.GetOptionalAttribute("Target.type");
    if (type != nullptr && *type != '\0') {
        mTargetType = in.GetAttributeLabel("Target.type", kTargetTypes);
        mObjectId = in.GetUUID("Object.Id");
    }
}

} // namespace OvZel
