#include "tests/random/CRandomDocument.h"

#include <iterator>

namespace ZelTest {

using namespace OvZel;

namespace {

constexpr const char* kEngines[] = {"com.Orvane.Renderer.VendralisPhysicalEngine",
                                    "com.Orvane.Renderer.VendralisWhiteModel",
                                    "com.Orvane.Renderer.VendralisFastEngine"};

} // namespace

void CRandomDocument::fill(IZelCamera& camera)
{
    fillView(camera);
    camera.setViewFlags(random.integer());
    camera.setFlag1(random.flag());
    if (random.flag())
        camera.setFlag0();
    camera.setPosition(random.point());
    camera.setTarget(random.point());
    camera.setRoll(random.number(0.0, 6.283));
    camera.setFocal(random.number(0.0, 180.0));
    fill(*camera.getInsertionObject());
    camera.setTargetType(random.integer(0, 1));
    camera.setObjectId(random.reference());
    if (random.flag())
        camera.setUp(random.point());
    camera.setArchitectFlag(random.flag());
}

void CRandomDocument::fill(IZelParallelView& view)
{
    fillView(view);
    view.setType(random.integer(0, 2));
    view.setViewFlags(random.integer());
    view.setNorthAngle(random.number());
    view.setSize(random.number());
    view.setPosition(random.point());
    view.setTarget(random.point());
    view.setSpecialShading(random.flag());
}

void CRandomDocument::fill(IZelViewObject& view)
{
    fillView(view);
    view.setViewFlags(random.integer());
    view.setFocal(random.number(1.0, 180.0));
    view.setCenter(random.point());
    view.setRadius(random.number(0.0, 1e9));
    view.setHorizontalAngle(random.integer(0, 360));
    view.setVerticalAngle(random.integer(0, 180));
    view.setHorizontalStep(random.word());
    view.setVerticalStep(random.word());
    view.setHorizontalShift(random.integer(0, 360));
    view.setVerticalShift(random.integer());
    view.setHorizontalStart(random.number());
    view.setVerticalStart(random.number());
    view.setOriginAngle(random.integer());
}

void CRandomDocument::fill(IZelPanoramaV2& panorama)
{
    fillId(panorama);
    fillView(panorama);
    extend(*panorama.getNodes());
    const std::int32_t nbNodes = panorama.getNodes()->getNbObjects();
    const auto anyNode = [&]() -> const CZelUUID& {
        IZelPanoNodeV2& node = *panorama.getNodes()->getZelObject(random.integer(0, nbNodes - 1));
        return *node.getBasicData()->getId();
    };
    // A link to a node that isn't there does not survive a load.
    for (std::int32_t i = 0; i < nbNodes; ++i) {
        IZelPanoLinkV2& link = *panorama.getLinks()->newZelObject(-1);
        fillId(link);
        link.setStart(anyNode());
        link.setEnd(anyNode());
        link.setPathId(random.reference());
    }
    panorama.setStartNode(random.reference());
    panorama.setDirection(random.point());
    panorama.setFocal(random.number());
    panorama.setCurrentNode(random.reference());
    panorama.setFlags(random.integer());
    extend(*panorama.getParallelViews());
    panorama.setCurrentDirection(random.point());
}

void CRandomDocument::fill(IZelPanoNodeV2& node)
{
    fillId(node);
    fillName(node);
    node.setPosition(random.point());
    node.setDirection(random.point());
}

// The view itself has no identifier in the file.
void CRandomDocument::fillView(IZelViewBasic& view)
{
    fillName(view);
    fill(*view.getViewInfo());
    fill(*view.getViewOptions());
}

void CRandomDocument::fill(IZelViewInfo& info)
{
    fillId(info);
    fillUIValue(info);
    info.setLocked(random.flag());
    fill(*info.getForeground());
    extend(*info.getLightsGroups());
    info.setHeliodonName(random.text());
    fill(*info.getCameraLight());
    fill(*info.getRadiosityLight());
    fill(*info.getDepthOfField());
    fill(*info.getClippingBox());
    info.setEnvironment(random.reference());
    fill(*info.getFilters());
    extend(*info.getNeonShaders());
    fill(*info.getBackgroundPicture());
    extend(*info.getLayers());
    info.getToneSettings()->setLightsTones(random.number());
    info.getToneSettings()->setDarkTones(random.number());
    info.setGround(random.reference());
    fill(*info.getLaser());
}

void CRandomDocument::fill(IZelFilters& filters)
{
    filters.getImageSettingsFilter()->setActive(random.flag());
    filters.getImageSettingsFilter()->setBrightness(random.number());
    filters.getImageSettingsFilter()->setContrast(random.number());
    filters.getImageSettingsFilter()->setSaturation(random.number());
    filters.getImageSettingsFilter()->setUseMixColor(random.flag());
    filters.getImageSettingsFilter()->setMixColor(random.color());
    filters.getGrainFilter()->setActive(random.flag());
    filters.getGrainFilter()->setBrightness(random.number());
    filters.getGrainFilter()->setSize(random.number());
    filters.getVignettingFilter()->setActive(random.flag());
    filters.getVignettingFilter()->setValue(random.number());
    filters.getExposureFilter()->setActive(random.flag());
    filters.getExposureFilter()->setExposure(random.number());
    filters.getExposureFilter()->setSize(random.number());
    filters.getHatchingFilter()->setActive(random.flag());
    filters.getHatchingFilter()->setIntensityThreshold(random.number());
    filters.getHatchingFilter()->setContourThreshold(random.number());
    filters.getHatchingFilter()->setUseTransparency(random.flag());
    filters.getHatchingFilter()->setTransparency(random.number());
}

// The kind of a light is part of its place.
void CRandomDocument::fill(IZelCameraLight& light)
{
    light.setUsed(random.flag());
    light.setColor(random.color());
    light.setPower(random.number());
}

void CRandomDocument::fill(IZelDepthOfField& depth)
{
    depth.setUsed(random.flag());
    depth.setType(random.integer(0, 3));
    depth.setClearnessPoint(random.point());
    depth.setClearnessDistanceInverse(random.number());
    depth.setClearnessSizeInverse(random.number());
}

void CRandomDocument::fill(IZelClippingBox& box)
{
    box.setMinimum(random.point());
    box.setMaximum(random.point());
    box.setVisible(random.flag());
    box.setActive(random.flag());
    box.setPivot(random.point());
    box.setAngle(random.number());
}

void CRandomDocument::fill(IZelLaser& laser)
{
    laser.setActive(random.flag());
    laser.setNormal(random.point());
    laser.setReference(random.point());
    laser.setDistance(random.number());
}

void CRandomDocument::fill(IZelInsertionObject& insertion)
{
    insertion.setActive(random.flag());
    const std::uint32_t width = random.word();
    insertion.setPictureSize(width, random.word(), false);
    for (std::int32_t i = 0; i < 15; ++i) {
        const CZelPoint2D pixel = random.point2D();
        insertion.setVanishingLinesPointsPosition(i, CZelPixel2D{pixel.x, pixel.y});
        insertion.setVanishingLinesPointsPosition(i, random.point2D());
    }
    for (std::int32_t i = 0; i < 3; ++i)
        insertion.setValue(i, static_cast<float>(random.coordinate()));
    for (std::int32_t i = 0; i < 6; ++i)
        insertion.setSixValue(i, static_cast<float>(random.coordinate()));
    insertion.setFlagD(random.flag());
    insertion.setFlagE(random.flag());
    for (std::int32_t i = 0; i < 6; ++i)
        insertion.setPerpectiveToolPosition(i, random.point2D());
    for (std::int32_t i = 0; i < 4; ++i)
        insertion.setReperePosition(i, random.point());
    insertion.setSizeAxis(random.integer(0, 2));
    insertion.setAxesVisibility(random.flag());
    insertion.setModelVisibility(random.flag());
    insertion.setPerspectiveToolVisibility(random.flag());
    insertion.setYAxeInverted(random.flag());
}

void CRandomDocument::fill(IZelViewOpt& options)
{
    fill(*options.getRenderingOpt());
    fill(*options.getCompressionOpt());
}

void CRandomDocument::fill(IZelRenderingOpt& options)
{
    options.setRaytracing(random.flag());
    options.setShadow(random.flag());
    options.setTransparency(random.flag());
    options.setAlpha(random.flag());
    options.setNbReflection(random.integer(0, 100));
    options.setNbRefraction(random.integer(0, 100));
    options.setHeight(random.integer(0, 10000));
    options.setWidth(random.integer(0, 10000));
    options.setCropX(random.integer());
    options.setCropY(random.integer());
    options.setCropWidth(random.integer());
    options.setCropHeight(random.integer());
    options.setURL(random.url());
    options.setOutputType(random.integer(0, 13));
    options.setAntialias(random.integer(0, 4));
    options.setRenderAll(random.flag());
    options.setRenderFirst(random.integer(0, 1000));
    options.setRenderLast(random.integer(0, 1000));
    options.setUseViewOptions(random.flag());
    options.setPreviewAntialias(random.flag());
    options.setHeightWidthLinked(random.flag());
    options.setScaleOn(random.flag());
    options.setParallelScale(random.integer(0, 1000));
    options.setImageResolution(random.integer(0, 1000));
    options.setPanoramaResolution(random.integer(0, 1000));
    fillQuality(options);
}

void CRandomDocument::fillQuality(IZelRenderingOpt& options)
{
    options.setRadiosity(random.flag());
    options.setRadiosityFactor(random.number(0.0, 1e6));
    options.setRadiosityQuality(random.number(0.0, 1e6));
    options.setContrast(random.number(0.0, 1e6));
    options.setLuminosity(random.number(-1.0, 1.0));
    options.setLongRange(random.number());
    options.setShortRange(random.number());
    options.setFirstBounce(random.number());
    options.setNextBounces(random.number());
    options.setAttenuation(random.number());
    options.setColorBleeding(random.number());
    options.setRendererIdentifier(random.once(4) ? random.text()
                                                 : CRandomText(kEngines[random.below(3)]));
    fill(*options.getExtendedData());
    options.setISO(random.integer());
    options.setShutterSpeed(random.integer());
    options.setColorBehavior(random.integer(0, 1));
    extend(*options.getEnginesOptions());
}

void CRandomDocument::fill(IZelCompressionOpt& options)
{
    options.setCodec(random.word());
    options.setDepth(random.integer());
    options.setSpacialQuality(random.integer());
    options.setTemporalQuality(random.integer());
    options.setFrameRate(random.number(1.0, 1000.0));
    options.setKeyFrameRate(random.integer());
}

void CRandomDocument::fill(IZelEngineOptions& options)
{
    options.setIdentifier(random.once(4) ? random.text() : CRandomText(kEngines[random.below(3)]));
    options.setAmbientOcclusion(random.flag());
    options.setAmbientOcclusionSize(random.integer(1, 100));
    options.setAmbientOcclusionIntensity(random.number(0.0, 1.0));
    options.setAutoSampling(random.integer(1, 4096));
    options.setAutoSamplingMin(random.integer(1, 96));
    options.setDisplacement(random.flag());
    options.setCaustic(random.flag());
    options.setPhysicalSky(random.flag());
    options.setWhiteBalance(random.flag());
    options.setWhiteBalanceColor({{random.byte(), random.byte(), random.byte(), 0}});
    options.setToneMappingExposure(random.number(0.0, 2.0));
    extend(*options.getDevValues());
    options.setCachesPassCount(random.integer(1, 5));
    options.setCachesInterpCount(random.integer(1, 5));
    options.setLightsSampling(random.integer(1, 5));
    options.setMaterialsSampling(random.integer(1, 5));
    options.setHemisphericSampling(random.integer(1, 5));
}

void CRandomDocument::fill(CZelRenderParameters& parameters)
{
    parameters.configName = random.string();
    for (CZelRenderParameters::CEntry& entry : parameters.entries) {
        entry.value = random.number();
        entry.minimum = random.number();
        entry.maximum = random.number();
        entry.flag = random.flag();
        entry.text = random.string();
        for (int i = 1; i < 4; ++i)
            entry.color[i] = random.byte();
    }
}

} // namespace ZelTest
