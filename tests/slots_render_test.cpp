#include "tests/support/slots.h"

#include <zel/IZelCompressionOpt.h>
#include <zel/IZelEngineOptions.h>
#include <zel/IZelRadiosityControl.h>
#include <zel/IZelRenderingOpt.h>
#include <zel/IZelViewOpt.h>

using namespace OvZel;
using ZelTest::expectOrder;

TEST(RenderSlots, IZelRenderingOpt)
{
    using I = IZelRenderingOpt;
    expectOrder(0, {AT(I::getRaytracing),
                    AT(I::setRaytracing),
                    AT(I::getShadow),
                    AT(I::setShadow),
                    AT(I::getTransparency),
                    AT(I::setTransparency),
                    AT(I::getAlpha),
                    AT(I::setAlpha),
                    AT(I::getNbReflection),
                    AT(I::setNbReflection),
                    AT(I::getNbRefraction),
                    AT(I::setNbRefraction),
                    AT(I::getHeight),
                    AT(I::setHeight),
                    AT(I::getWidth),
                    AT(I::setWidth),
                    AT(I::getCropX),
                    AT(I::setCropX),
                    AT(I::getCropY),
                    AT(I::setCropY),
                    AT(I::getCropWidth),
                    AT(I::setCropWidth),
                    AT(I::getCropHeight),
                    AT(I::setCropHeight),
                    AT(I::getURL),
                    AT(I::setURL),
                    AT(I::getOutputType),
                    AT(I::setOutputType),
                    AT(I::getAntialias),
                    AT(I::setAntialias),
                    AT(I::getRenderAll),
                    AT(I::setRenderAll),
                    AT(I::getRenderFirst),
                    AT(I::setRenderFirst),
                    AT(I::getRenderLast),
                    AT(I::setRenderLast),
                    CONST_AT(const IZelRadiosityControl*, I::getRadiosityControl),
                    OTHER_AT(IZelRadiosityControl*, I::getRadiosityControl),
                    AT(I::getUseViewOptions),
                    AT(I::setUseViewOptions),
                    AT(I::getPreviewAntialias),
                    AT(I::setPreviewAntialias),
                    AT(I::getHeightWidthLinked),
                    AT(I::setHeightWidthLinked),
                    AT(I::getScaleOn),
                    AT(I::setScaleOn),
                    AT(I::getParallelScale),
                    AT(I::setParallelScale),
                    AT(I::getImageResolution),
                    AT(I::setImageResolution),
                    AT(I::getPanoramaResolution),
                    AT(I::setPanoramaResolution),
                    AT(I::getRadiosity),
                    AT(I::setRadiosity),
                    AT(I::getRadiosityFactor),
                    AT(I::setRadiosityFactor),
                    AT(I::getRadiosityQuality),
                    AT(I::setRadiosityQuality),
                    AT(I::getContrast),
                    AT(I::setContrast),
                    AT(I::getLuminosity),
                    AT(I::setLuminosity),
                    AT(I::getLongRange),
                    AT(I::setLongRange),
                    AT(I::getShortRange),
                    AT(I::setShortRange),
                    AT(I::getFirstBounce),
                    AT(I::setFirstBounce),
                    AT(I::getNextBounces),
                    AT(I::setNextBounces),
                    AT(I::getAttenuation),
                    AT(I::setAttenuation),
                    AT(I::getColorBleeding),
                    AT(I::setColorBleeding),
                    AT(I::getRendererIdentifier),
                    AT(I::setRendererIdentifier),
                    CONST_AT(const OrvaneXML::XIXMLElement*, I::getExtendedData),
                    OTHER_AT(OrvaneXML::XIXMLElement*, I::getExtendedData),
                    AT(I::getISO),
                    AT(I::setISO),
                    AT(I::getShutterSpeed),
                    AT(I::setShutterSpeed),
                    AT(I::getColorBehavior),
                    AT(I::setColorBehavior),
                    CONST_AT(const TZelObjectMgr<IZelEngineOptions>*, I::getEnginesOptions),
                    OTHER_AT(TZelObjectMgr<IZelEngineOptions>*, I::getEnginesOptions),
                    CONST_AT(const IZelEngineOptions*, I::getEngineOptions),
                    OTHER_AT(IZelEngineOptions*, I::getEngineOptions)});
}

TEST(RenderSlots, IZelEngineOptions)
{
    using I = IZelEngineOptions;
    expectOrder(0, {AT(I::getIdentifier),
                    AT(I::setIdentifier),
                    AT(I::getAmbientOcclusion),
                    AT(I::setAmbientOcclusion),
                    AT(I::getAmbientOcclusionSize),
                    AT(I::setAmbientOcclusionSize),
                    AT(I::getAmbientOcclusionIntensity),
                    AT(I::setAmbientOcclusionIntensity),
                    AT(I::getAutoSampling),
                    AT(I::setAutoSampling),
                    AT(I::getAutoSamplingMin),
                    AT(I::setAutoSamplingMin),
                    AT(I::getDisplacement),
                    AT(I::setDisplacement),
                    AT(I::getCaustic),
                    AT(I::setCaustic),
                    AT(I::getPhysicalSky),
                    AT(I::setPhysicalSky),
                    AT(I::getWhiteBalance),
                    AT(I::setWhiteBalance),
                    AT(I::getWhiteBalanceColor),
                    AT(I::setWhiteBalanceColor),
                    AT(I::getToneMappingExposure),
                    AT(I::setToneMappingExposure),
                    CONST_AT(const TZelObjectMgr<double>*, I::getDevValues),
                    OTHER_AT(TZelObjectMgr<double>*, I::getDevValues),
                    AT(I::getCachesPassCount),
                    AT(I::setCachesPassCount),
                    AT(I::getCachesInterpCount),
                    AT(I::setCachesInterpCount),
                    AT(I::getLightsSampling),
                    AT(I::setLightsSampling),
                    AT(I::getMaterialsSampling),
                    AT(I::setMaterialsSampling),
                    AT(I::getHemisphericSampling),
                    AT(I::setHemisphericSampling)});
}

TEST(RenderSlots, IZelCompressionOpt)
{
    using I = IZelCompressionOpt;
    expectOrder(0, {AT(I::getCodec), AT(I::setCodec), AT(I::getDepth), AT(I::setDepth),
                    AT(I::getSpacialQuality), AT(I::setSpacialQuality), AT(I::getTemporalQuality),
                    AT(I::setTemporalQuality), AT(I::getFrameRate), AT(I::setFrameRate),
                    AT(I::getKeyFrameRate), AT(I::setKeyFrameRate)});
}

TEST(RenderSlots, IZelRadiosityControl)
{
    using I = IZelRadiosityControl;
    expectOrder(0, {AT(I::getOn), AT(I::setOn), AT(I::getQuality), AT(I::setQuality),
                    AT(I::getFactor), AT(I::setFactor)});
}

TEST(RenderSlots, IZelViewOpt)
{
    using I = IZelViewOpt;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML),
                    CONST_AT(const IZelRenderingOpt*, I::getRenderingOpt),
                    OTHER_AT(IZelRenderingOpt*, I::getRenderingOpt),
                    CONST_AT(const IZelCompressionOpt*, I::getCompressionOpt),
                    OTHER_AT(IZelCompressionOpt*, I::getCompressionOpt)});
}
