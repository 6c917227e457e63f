#include "render/CRenderingOpt.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/listXML.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

namespace {

constexpr CZelLabel kAntialias[] = {
    {"No", 0}, {"Good", 1}, {"Excellent", 2}, {"Special", 3}, {"VeryHight", 4}, {nullptr, 0}, // sic
};
constexpr CZelLabel kOutputTypes[] = {
    {"CmpPict", 0}, {"Pict", 1},     {"CmpTGA", 2}, {"TGA", 3},        {"BMP", 4},
    {"JPEG", 5},    {"CmpQTime", 6}, {"QTime", 7},  {"CmpVRQTime", 8}, {"VRQTime", 9},
    {"Real", 10},   {"AVI", 11},     {"Epix", 12},  {"Tiff", 13},      {nullptr, 0},
};
constexpr CZelLabel kColorBehaviors[] = {
    {"Autolum", 0},
    {"IsoShutter", 1},
    {nullptr, 0},
};

/// Labels stand in children here, unlike those of all other elements. The text of the child, or of
/// the attribute of that name, or null.
const char* findLabel(const CZelXMLGet& in, OrvaneXML::CXMLTag tag)
{
    return in.IsElement(tag) ? in.GetText(tag) : in.GetOptionalAttribute(tag);
}

} // namespace

void CRenderingOpt::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    addValues(out);
    addItems(io, out.AddElement("Engines.Options"), "Engine.Options", *mEnginesOptions);
    CZelXMLAdd(out.AddElement("Renderer")).AddAttribute("Identifier", mRendererIdentifier.c_str());
    OvThrow::IfNULL(extendedData()->GetNode()->CloneInto(out.element()));
}

/// "Renderer" comes before the engines, since it says whose values an older file holds.
void CRenderingOpt::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    getValues(in);
    if (XIXMLElement* renderer = in.FindElement("Renderer"))
        if (const char* identifier = CZelXMLGet(renderer).GetOptionalAttribute("Identifier"))
            mRendererIdentifier = identifier;
    getEngines(io, in);
    getExtendedDataFrom(in);
}

void CRenderingOpt::addValues(const CZelXMLAdd& out) const
{
    out.AddBoolean("Raytracing", mRaytracing);
    out.AddBoolean("Shadow", mShadow);
    out.AddBoolean("Transparency", mTransparency);
    out.AddInteger("Nb.Reflections", mNbReflection);
    out.AddInteger("Nb.Refractions", mNbRefraction);
    out.AddInteger("Width", mWidth);
    out.AddInteger("Height", mHeight);
    out.AddInteger("Crop.X", mCropX);
    out.AddInteger("Crop.Y", mCropY);
    out.AddInteger("Crop.Width", mCropWidth);
    out.AddInteger("Crop.Height", mCropHeight);
    out.AddText("Antialias", labelText(kAntialias, mAntialias));
    out.AddText("Output.Type", labelText(kOutputTypes, mOutputType));
    out.AddBoolean("Alpha", mAlpha);
    out.AddBoolean("Render.All", mRenderAll);
    out.AddInteger("Render.First", mRenderFirst);
    out.AddInteger("Render.Last", mRenderLast);
    out.AddText("URL", mURL.c_str());
    out.AddBoolean("Use.View.Options", mUseViewOptions);
    out.AddBoolean("Preview.Antialias", mPreviewAntialias);
    out.AddBoolean("Height.Width.Linked", mHeightWidthLinked);
    out.AddBoolean("Scale.On", mScaleOn);
    out.AddInteger("Scale", mParallelScale);
    out.AddInteger("Resolution", mImageResolution);
    out.AddInteger("Resolution.Level", mPanoramaResolution);
    out.AddBoolean("Radiosity", getRadiosity());
    out.AddDouble("Radiosity.Factor", getRadiosityFactor());
    out.AddDouble("Radiosity.Quality", getRadiosityQuality());
    out.AddDouble("Contrast", mContrast);
    out.AddDouble("Luminosity", mLuminosity);
    out.AddDouble("Long.Range", mLongRange);
    out.AddDouble("Short.Range", mShortRange);
    out.AddDouble("First.Bounce", mFirstBounce);
    out.AddDouble("Next.Bounces", mNextBounces);
    out.AddDouble("Attenuation", mAttenuation);
    out.AddDouble("ColorBleeding", mColorBleeding);
    out.AddInteger("ISO", mISO);
    out.AddInteger("ShutterSpeed", mShutterSpeed);
    out.AddText("Color.Behavior", labelText(kColorBehaviors, mColorBehavior));
}

void CRenderingOpt::getValues(const CZelXMLGet& in)
{
    setRaytracing(in.IsElement("Raytracing"));
    setShadow(in.IsElement("Shadow"));
    setTransparency(in.IsElement("Transparency"));
    if (in.IsElement("Nb.Reflections"))
        setNbReflection(in.GetInteger("Nb.Reflections"));
    if (in.IsElement("Nb.Refractions"))
        setNbRefraction(in.GetInteger("Nb.Refractions"));
    if (in.IsElement("Width"))
        setWidth(in.GetInteger("Width"));
    if (in.IsElement("Height"))
        setHeight(in.GetInteger("Height"));
    if (in.IsElement("Crop.X"))
        setCropX(in.GetInteger("Crop.X"));
    if (in.IsElement("Crop.Y"))
        setCropY(in.GetInteger("Crop.Y"));
    if (in.IsElement("Crop.Width"))
        setCropWidth(in.GetInteger("Crop.Width"));
    if (in.IsElement("Crop.Height"))
        setCropHeight(in.GetInteger("Crop.Height"));
    if (const char* label = findLabel(in, "Antialias"))
        mAntialias = labelValue(kAntialias, label);
    if (const char* label = findLabel(in, "Output.Type"))
        mOutputType = labelValue(kOutputTypes, label);
    setAlpha(in.IsElement("Alpha"));
    setRenderAll(in.IsElement("Render.All"));
    if (in.IsElement("Render.First"))
        setRenderFirst(in.GetInteger("Render.First"));
    if (in.IsElement("Render.Last"))
        setRenderLast(in.GetInteger("Render.Last"));
    if (in.IsElement("URL"))
        setURL(in.GetText("URL"));
    setUseViewOptions(in.IsElement("Use.View.Options"));
    setPreviewAntialias(in.IsElement("Preview.Antialias"));
    setHeightWidthLinked(in.IsElement("Height.Width.Linked"));
    setScaleOn(in.IsElement("Scale.On"));
    if (in.IsElement("Scale"))
        setParallelScale(in.GetInteger("Scale"));
    if (in.IsElement("Resolution"))
        setImageResolution(in.GetInteger("Resolution"));
    if (in.IsElement("Resolution.Level"))
        setPanoramaResolution(in.GetInteger("Resolution.Level"));
    setRadiosity(in.IsElement("Radiosity"));
    if (in.IsElement("Radiosity.Factor"))
        setRadiosityFactor(in.GetDouble("Radiosity.Factor"));
    if (in.IsElement("Radiosity.Quality"))
        setRadiosityQuality(in.GetDouble("Radiosity.Quality"));
    if (in.IsElement("Contrast"))
        setContrast(in.GetDouble("Contrast"));
    if (in.IsElement("Luminosity"))
        setLuminosity(in.GetDouble("Luminosity"));
    if (in.IsElement("Long.Range"))
        setLongRange(in.GetDouble("Long.Range"));
    if (in.IsElement("Short.Range"))
        setShortRange(in.GetDouble("Short.Range"));
    if (in.IsElement("First.Bounce"))
        setFirstBounce(in.GetDouble("First.Bounce"));
    if (in.IsElement("Next.Bounces"))
        setNextBounces(in.GetDouble("Next.Bounces"));
    if (in.IsElement("Attenuation"))
        setAttenuation(in.GetDouble("Attenuation"));
    if (in.IsElement("ColorBleeding"))
        setColorBleeding(in.GetDouble("ColorBleeding"));
    if (in.IsElement("ISO"))
        setISO(in.GetInteger("ISO"));
    if (in.IsElement("ShutterSpeed"))
        setShutterSpeed(in.GetInteger("ShutterSpeed"));
    if (const char* label = findLabel(in, "Color.Behavior"))
        mColorBehavior = labelValue(kColorBehaviors, label);
}

void CRenderingOpt::getEngines(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (XIXMLElement* engines = in.FindElement("Engines.Options"))
        return getItems(io, engines, "Engine.Options", *mEnginesOptions);
    // Older files have the values of one engine, directly in "Rendering".
    CZelEngineOptions* options = engineOptions();
    OvThrow::IfNULL(options);
    options->getValuesFrom(io, in);
}

void CRenderingOpt::getExtendedDataFrom(const CZelXMLGet& in)
{
    XIXMLElement* found = in.FindElement("Extended.Datas");
    if (found == nullptr)
        return;
    auto tree = std::make_unique<OrvaneXML::XCXMLTree>();
    OvThrow::IfNULL(found->GetNode()->CloneInto(tree->GetRoot()));
    mExtendedData = std::move(tree);
}

} // namespace OvZel
