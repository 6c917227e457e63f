#include "render/CZelEngineOptions.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

void CZelEngineOptions::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttribute("Identifier", mIdentifier.c_str());
    out.AddBoolean("Ambient.Occlusion", mAmbientOcclusion);
    out.AddInteger("Ambient.Occlusion.Size", mAmbientOcclusionSize);
    out.AddDouble("Ambient.Occlusion.Intensity", mAmbientOcclusionIntensity);
    out.AddInteger("Caches.Pass.Count", mCachesPassCount);
    out.AddInteger("Caches.Interp.Count", mCachesInterpCount);
    out.AddInteger("Auto.Sampling", mAutoSampling);
    out.AddInteger("Auto.Sampling.Min", mAutoSamplingMin);
    out.AddBoolean("Displacement", mDisplacement);
    out.AddBoolean("Caustic", mCaustic);
    out.AddBoolean("Physical.Sky", mPhysicalSky);
    out.AddBoolean("White.Balance", mWhiteBalance);
    out.AddColor("White.Balance.Color",
                 CZelColor::rgb(mWhiteBalanceColor.bytes[0], mWhiteBalanceColor.bytes[1],
                                mWhiteBalanceColor.bytes[2]));
    out.AddDouble("Tone.Mapping.Exposure", mToneMappingExposure);
    addDevValues(out);
    out.AddInteger("Lights.Sampling.Value", mLightsSampling);
    out.AddInteger("Materials.Sampling.Value", mMaterialsSampling);
    out.AddInteger("Hemispheric.Sampling.Value", mHemisphericSampling);
}

void CZelEngineOptions::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (const char* identifier = in.GetOptionalAttribute("Identifier"))
        mIdentifier = identifier;
    getValuesFrom(io, in);
}

void CZelEngineOptions::getValuesFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    setAmbientOcclusion(in.IsElement("Ambient.Occlusion"));
    if (in.IsElement("Ambient.Occlusion.Size"))
        setAmbientOcclusionSize(in.GetInteger("Ambient.Occlusion.Size"));
    if (in.IsElement("Ambient.Occlusion.Intensity"))
        setAmbientOcclusionIntensity(in.GetDouble("Ambient.Occlusion.Intensity"));
    if (in.IsElement("Caches.Pass.Count"))
        setCachesPassCount(in.GetInteger("Caches.Pass.Count"));
    if (in.IsElement("Caches.Interp.Count"))
        setCachesInterpCount(in.GetInteger("Caches.Interp.Count"));
    if (in.IsElement("Auto.Sampling"))
        setAutoSampling(in.GetInteger("Auto.Sampling"));
    if (in.IsElement("Auto.Sampling.Min"))
        setAutoSamplingMin(in.GetInteger("Auto.Sampling.Min"));
    setDisplacement(in.IsElement("Displacement"));
    setCaustic(in.IsElement("Caustic"));
    setPhysicalSky(in.IsElement("Physical.Sky"));
    setWhiteBalance(in.IsElement("White.Balance"));
    if (in.IsElement("White.Balance.Color")) {
        const CZelColor color = in.GetColor("White.Balance.Color");
        mWhiteBalanceColor = {{color.bytes[1], color.bytes[2], color.bytes[3], 0}};
    }
    if (in.IsElement("Tone.Mapping.Exposure"))
        setToneMappingExposure(in.GetDouble("Tone.Mapping.Exposure"));
    getDevValuesFrom(in);
    if (in.IsElement("Lights.Sampling.Value"))
        setLightsSampling(in.GetInteger("Lights.Sampling.Value"));
    if (in.IsElement("Materials.Sampling.Value"))
        setMaterialsSampling(in.GetInteger("Materials.Sampling.Value"));
    if (in.IsElement("Hemispheric.Sampling.Value"))
        setHemisphericSampling(in.GetInteger("Hemispheric.Sampling.Value"));
}

void CZelEngineOptions::addDevValues(const CZelXMLAdd& out) const
{
    if (mDevValues->size() == 0)
        return; // readers in the field fail on a list without a value
    const CZelXMLAdd list(out.AddElement("Dev.Values"));
    list.AddFmtAttribute("Count", "%d", mDevValues->size());
    for (std::int32_t i = 0; i < mDevValues->size(); ++i)
        list.AddDouble("Dev.Value", mDevValues->data()[i]);
}

/// Adds to the values that are there.
void CZelEngineOptions::getDevValuesFrom(const CZelXMLGet& in)
{
    XIXMLElement* found = in.FindElement("Dev.Values");
    if (found == nullptr)
        return;
    const CZelXMLGet list(found);
    std::int32_t nb = 0;
    list.GetFmtAttribute("Count", "%d", &nb);
    if (nb < 1)
        return;
    XIXMLElement* item = list.GetElement("Dev.Value");
    for (std::int32_t i = 0; i < nb; ++i, item = item->GetNextSame()) {
        OvThrow::IfNULL(item, "CZelXMLIO::GetEngineOptions 1");
        const OrvaneXML::XIXMLData* text = item->GetFirstText();
        OvThrow::IfNULL(text, "CZelXMLIO::GetEngineOptions 2");
        double* value = mDevValues->append();
        OvThrow::IfNULL(value);
        text->Scan("%lf", value);
    }
}

} // namespace OvZel
