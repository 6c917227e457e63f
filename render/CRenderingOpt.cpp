#include "render/CRenderingOpt.h"

namespace OvZel {

namespace {

constexpr char kExtendedData[] = "Extended.Datas";

std::int32_t cachesPassCountOf(const std::string& renderer)
{
    if (renderer == "com.Orvane.Renderer.VendralisWhiteModel")
        return 2;
    return renderer == "com.Orvane.Renderer.VendralisFastEngine" ? 1 : 3;
}

} // namespace

CRenderingOpt::CRenderingOpt(IZelObjectLink* owner)
    : TZelFrontierObjLink(owner), mEnginesOptions(new CEngines(this)),
      mExtendedData(std::make_unique<OrvaneXML::XCXMLTree>())
{
}

void CRenderingOpt::warnIf(bool clipped, const char* warning) const
{
    if (clipped)
        warn(warning);
}

void CRenderingOpt::storeNotNegative(std::int32_t& field, std::int32_t value, const char* warning)
{
    field = value < 0 ? 0 : value;
    warnIf(value < 0, warning);
}

void CRenderingOpt::setNbReflection(std::int32_t nb)
{
    storeNotNegative(
        mNbReflection, nb,
        "class CRenderingOpt: Method setNbReflection has clipped a value out of range.");
}

void CRenderingOpt::setNbRefraction(std::int32_t nb)
{
    storeNotNegative(
        mNbRefraction, nb,
        "class CRenderingOpt: Method setNbRefraction has clipped a value out of range.");
}

void CRenderingOpt::setHeight(std::int32_t height)
{
    storeNotNegative(mHeight, height,
                     "class CRenderingOpt: Method setHeight has clipped a value out of range.");
}

void CRenderingOpt::setWidth(std::int32_t width)
{
    storeNotNegative(mWidth, width,
                     "class CRenderingOpt: Method setWidth has clipped a value out of range.");
}

void CRenderingOpt::setRenderFirst(std::int32_t index)
{
    storeNotNegative(
        mRenderFirst, index,
        "class CRenderingOpt: Method setRenderFirst has clipped a value out of range.");
}

void CRenderingOpt::setRenderLast(std::int32_t index)
{
    storeNotNegative(mRenderLast, index,
                     "class CRenderingOpt: Method setRenderLast has clipped a value out of range.");
}

void CRenderingOpt::setParallelScale(std::int32_t scale)
{
    storeNotNegative(
        mParallelScale, scale,
        "class CRenderingOpt: Method setParallelScale has clipped a value out of range.");
}

void CRenderingOpt::setImageResolution(std::int32_t resolution)
{
    storeNotNegative(
        mImageResolution, resolution,
        "class CRenderingOpt: Method setImageResolution has clipped a value out of range.");
}

void CRenderingOpt::setPanoramaResolution(std::int32_t resolution)
{
    storeNotNegative(
        mPanoramaResolution, resolution,
        "class CRenderingOpt: Method setPanoramaResolution has clipped a value out of range.");
}

void CRenderingOpt::setRadiosityFactor(double factor)
{
    const double kept = kRadiosityFactor.clip(factor);
    mRadiosity.setFactor(kept);
    // Clients compare the message, which lacks a space (sic).
    warnIf(kept != factor,
           "class CRenderingOpt:Method setRadiosityFactor has clipped a value out of range.");
}

void CRenderingOpt::setRadiosityQuality(double quality)
{
    const double kept = kRadiosityQuality.clip(quality);
    mRadiosity.setQuality(kept);
    warnIf(kept != quality,
           "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range.");
}

void CRenderingOpt::setContrast(double contrast)
{
    mContrast = kContrast.clip(contrast);
    warnIf(mContrast != contrast, "CRenderingOpt::setContrast value must be positive");
}

void CRenderingOpt::setLuminosity(double luminosity)
{
    mLuminosity = kLuminosity.clip(luminosity);
    warnIf(mLuminosity != luminosity,
           "CRenderingOpt::setLuminosity value must be between -1 and 1.");
}

CZelEngineOptions* CRenderingOpt::engineOptions() const
{
    for (std::int32_t i = 0; i < mEnginesOptions->size(); ++i)
        if (mRendererIdentifier == mEnginesOptions->at(i)->getIdentifier())
            return mEnginesOptions->at(i);
    CZelEngineOptions* made = mEnginesOptions->append();
    if (made == nullptr)
        return nullptr;
    made->setIdentifier(mRendererIdentifier.c_str());
    made->setCachesPassCount(cachesPassCountOf(mRendererIdentifier));
    return made;
}

OrvaneXML::XIXMLElement* CRenderingOpt::extendedData() const
{
    OrvaneXML::XIXMLElement* root = mExtendedData->GetRoot();
    OrvaneXML::XIXMLElement* element = root->GetFirstElement();
    return element != nullptr ? element : root->AddElement(root->MakeKey(kExtendedData));
}

} // namespace OvZel
