#include "views/CZelViewInfo.h"

#include "views/viewEnvironment.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelViewInfo::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("View.Info");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelViewInfo::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("View.Info")));
    return true;
}

void CZelViewInfo::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    out.AddBoolean("Locked", mLocked);
    out.AddInteger("UI.Value", static_cast<std::int32_t>(getUIValue()));
    mForeground.addTo(io, CZelXMLAdd(out.AddElement("Foregroung"))); // (sic)
    out.AddIdList("Lights.Groups", "Light", *mLightsGroups);
    CZelXMLAdd(out.AddElement("Heliodon.Name")).AddAttribute("en", mHeliodonName.c_str());
    mDepthOfField.addTo(io, CZelXMLAdd(out.AddElement("Depth.Of.Field")));
    mClippingBox.addTo(io, CZelXMLAdd(out.AddElement("Clipping.Box")));
    mLaser.addTo(io, CZelXMLAdd(out.AddElement("Laser")));
    mCameraLight.addTo(io, CZelXMLAdd(out.AddElement(mCameraLight.tag())));
    mRadiosityLight.addTo(io, CZelXMLAdd(out.AddElement(mRadiosityLight.tag())));
    out.AddUUID("Environment", mEnvironment);
    mFilters.addTo(io, CZelXMLAdd(out.AddElement("Filters")));
    out.AddIdList("Neon.Shaders", "Neon.Shader", *mNeonShaders);
    mBackgroundPicture.addTo(io, CZelXMLAdd(out.AddElement("Background.Picture")));
    out.AddIdList("Layers", "Layer", *mLayers);
    mToneSettings.addTo(io, CZelXMLAdd(out.AddElement("Tone.Settings")));
    out.AddUUID("Ground", mGround);
    addViewEnvironment(io, out, mEnvironment);
}

void CZelViewInfo::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    getOptionalId(io, in);
    mLocked = in.IsElement("Locked");
    if (in.IsElement("UI.Value"))
        setUIValue(static_cast<std::uint32_t>(in.GetInteger("UI.Value")));
    mForeground.getFrom(io, CZelXMLGet(in.GetElement("Foregroung"))); // (sic)
    in.GetIdList("Lights.Groups", "Light", *mLightsGroups);
    mHeliodonName = in.GetAttributeLanguage("Heliodon.Name");
    mDepthOfField.getFrom(io, CZelXMLGet(in.GetElement("Depth.Of.Field")));
    if (in.IsElement("Clipping.Box"))
        mClippingBox.getFrom(io, CZelXMLGet(in.GetElement("Clipping.Box")));
    if (in.IsElement("Laser"))
        mLaser.getFrom(io, CZelXMLGet(in.GetElement("Laser")));
    if (in.IsElement("Camera.Light"))
        mCameraLight.getFrom(io, CZelXMLGet(in.GetElement("Camera.Light")));
    if (in.IsElement("Radiosity.Light"))
        mRadiosityLight.getFrom(io, CZelXMLGet(in.GetElement("Radiosity.Light")));
    if (in.GetOptionalAttribute("Environment") != nullptr)
        mEnvironment = in.GetUUID("Environment");
    if (in.IsElement("Filters"))
        mFilters.getFrom(io, CZelXMLGet(in.GetElement("Filters")));
    in.GetIdList("Neon.Shaders", "Neon.Shader", *mNeonShaders);
    if (in.IsElement("Background.Picture"))
        mBackgroundPicture.getFrom(io, CZelXMLGet(in.GetElement("Background.Picture")));
    if (in.IsElement("Layers"))
        in.GetIdList("Layers", "Layer", *mLayers);
    if (in.IsElement("Tone.Settings"))
        mToneSettings.getFrom(io, CZelXMLGet(in.GetElement("Tone.Settings")));
    // Another identifier than "Environment": it is taken only together with those of the objects.
    if (io.getUUID() && in.GetOptionalAttribute("Ground") != nullptr)
        mGround = in.GetUUID("Ground");
    if (in.IsElement("Environment"))
        getViewEnvironment(io, CZelXMLGet(in.GetElement("Environment")));
}

} // namespace OvZel
