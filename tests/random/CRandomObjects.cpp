#include "tests/random/CRandomDocument.h"

#include <iterator>

namespace ZelTest {

using namespace OvZel;

namespace {

constexpr const char* kDefinitionClasses[] = {"ModelObject",           "3DPlant",
                                              "3DPlantGroupInstances", "LightObject",
                                              "AnimatedObject",        "Client.Class"};

constexpr const char* kInstanceClasses[] = {"",
                                            "ModelObject",
                                            "ZelObject",
                                            "3DPlant",
                                            "Billboard",
                                            "LightObject",
                                            "AnimatedObject",
                                            "GroupInstances",
                                            "3DPlantGroupInstances",
                                            "Client.Class"};

constexpr const char* kLayerClasses[] = {"3DPlant", "ZelObject", "Billboard", "LightObject",
                                         "AnimatedObject"};

} // namespace

void CRandomDocument::fill(IZelZelObjectDefinition& definition)
{
    fillBasic(definition);
    fillMesh(*definition.getPoints(), *definition.getPolygons());
    definition.setClass(kDefinitionClasses[random.below(std::size(kDefinitionClasses))]);
    fill(*definition.getName());
    definition.setAnchor(random.point());
    definition.setPlacement(random.integer(0, 1));
    definition.setUp(random.point());
    definition.setInitialAngle(random.number());
    definition.setModelRotation(random.point());
    double matrix[16];
    for (double& value : matrix)
        value = random.number();
    definition.setModelRotationMatrix(matrix);
    definition.setModelPosition(random.point());
    definition.setModelOrigin(random.integer(0, 4));
    fill(*definition.getObjectData());
    fill(*definition.getInstanceData());
    extend(*definition.getProperties());
    fill(*definition.getDescription1());
    fill(*definition.getDescription2());
    fill(*definition.getComment());
    definition.setLightGroupID(random.reference());
    extend(*definition.getSetups());
    definition.setGeometryLevel(random.integer());
    if (definition.as3DPlant() != nullptr)
        fill(*definition.as3DPlant());
    if (definition.asAnimatedObject() != nullptr)
        fill(*definition.asAnimatedObject());
}

void CRandomDocument::fill(IZelZelObjectDefinition::IZelZelObjectSetup& setup)
{
    fill(*setup.getName());
    setup.setUUID(random.id());
}

void CRandomDocument::fill(IZel3DPlant& plant)
{
    plant.setPlantType(random.integer(0, 8));
    extend(*plant.getPlantSetUps());
}

void CRandomDocument::fill(IZel3DPlant::IPlantSetUp& setup)
{
    fill(*setup.getStartTime());
    fill(*setup.getEndTime());
    setup.setColor(random.integer(-1, 8));
    setup.setId(random.id());
}

void CRandomDocument::fill(IZelAnimatedObject& character)
{
    character.setExternalFileType(random.integer(0, 1));
    character.setExternalFile(random.url());
    extend(*character.getTakes());
    character.setIndex(random.integer());
    double matrix[16];
    for (double& value : matrix)
        value = random.number();
    character.setInitialMatrix(matrix);
}

void CRandomDocument::fill(IZelAnimatedObject::IZelTake& take)
{
    take.setDuration(random.integer());
    take.setFPS(random.integer());
    take.setName(random.text());
    take.setZMin(random.number());
    take.setType(random.integer(0, 1));
    take.setZAngle(random.number());
}

void CRandomDocument::fill(IZelExternalDefinition& definition)
{
    fillBasic(definition);
    definition.setURL(random.url());
    extend(*definition.getProperties());
}

void CRandomDocument::fill(IZelObjectInstance& instance)
{
    fillBasic(instance);
    instance.setClass(kInstanceClasses[random.below(std::size(kInstanceClasses))]);
    fill(*instance.getInstanceData());
    instance.setAttachId(random.reference());
    instance.setTranslation(random.point());
    instance.setRotation(random.point());
    instance.setScale(random.point());
    instance.setTriangleId(random.integer());
    instance.setNormal(random.point());
    instance.setAnchorPosition(random.point());
    instance.setUpVector(random.point());
    instance.setPlacementProperty(random.integer(0, 1));
    instance.setInitialAngle(random.number());
    instance.setBoundingBox({random.point(), random.point()});
    instance.setCoordinatesLocked(random.flag());
    instance.setScaleLocked(random.flag());
    instance.setAnimationBehavior(random.integer(0, 2));
    instance.setCurrentPathDirection(random.point());
    instance.setTarget(random.flag());
    instance.setTransparency(random.number(0.0, 1.0));
    instance.setLayerId(random.reference());
    instance.setMaterialsDifferents(random.flag());
    instance.setOverloadId(random.reference());
    instance.setVisible(random.flag());
    instance.setOptimised(random.flag());
    instance.setSubInstance(random.flag());
    extend(*instance.getProperties());
    fillDelegate(instance);
}

void CRandomDocument::fillDelegate(IZelObjectInstance& instance)
{
    const auto fillIf = [&](auto* delegate) {
        if (delegate != nullptr)
            fill(*delegate);
    };
    fillIf(instance.asZelObjectInstance());
    fillIf(instance.as3DPlantRef());
    fillIf(instance.asBBObjectInstance());
    fillIf(instance.asAnimatedObjectInstance());
    fillIf(instance.asInternalComponentInstance());
    fillIf(instance.asGroupInstances());
}

void CRandomDocument::fill(IZelZelObjectInstance& delegate)
{
    delegate.setUrl(random.url());
    extend(*delegate.getProperties());
    delegate.setCurrentOverload(random.reference());
    extend(*delegate.getLights());
    delegate.setExternalDefinitionId(random.reference());
}

void CRandomDocument::fill(IZel3DPlantRef& delegate)
{
    delegate.setHeliodonAttached(random.flag());
    fill(*delegate.getTime());
    delegate.setColor(random.integer(-1, 8));
}

void CRandomDocument::fill(IZelBBObjectInstance& delegate)
{
    delegate.setOrientWithCamera(random.flag());
    delegate.setVerticalFlip(random.flag());
    delegate.setHorizontalFlip(random.flag());
    delegate.setRenderType(random.integer(0, 1));
    delegate.setShininess(random.number());
    delegate.setRoughness(random.number());
    delegate.setBrightness(random.number());
    delegate.setContrast(random.number());
    delegate.setKind(random.integer(0, 2));
    delegate.setDefinitionSize(random.number());
    delegate.setDefinitionName(random.text());
    delegate.setUrl(random.url());
    delegate.setCurrentConfig(random.integer());
    extend(*delegate.getOverloadedProperties());
}

void CRandomDocument::fill(IZelAnimatedObjectInstance& delegate)
{
    delegate.setCurrentFrame(random.integer());
    delegate.setCurrentTake(random.integer());
    delegate.setRealDuration(random.integer());
    delegate.setStartFrame(random.integer());
    extend(*delegate.getOverloadedProperties());
}

void CRandomDocument::fill(IZelInternalComponentInstance& delegate)
{
    delegate.setComponentUUID(random.reference());
    extend(*delegate.getProperties());
}

void CRandomDocument::fill(IZelGroupInstances& delegate)
{
    delegate.setUrl(random.url());
}

void CRandomDocument::fill(IZelLayer& layer)
{
    fillBasic(layer);
}

void CRandomDocument::fill(IZelLayerInfo& info)
{
    info.setActiveLayer(random.reference());
    for (const char* each : kLayerClasses)
        if (random.flag())
            info.setDefaultLayer(each, random.reference());
}

void CRandomDocument::fill(IZelBBMgrData& billboard)
{
    fill(*billboard.getBillboard());
    extend(*billboard.getQuads());
    billboard.setProperty(random.word());
    fill(*billboard.getTexture());
}

void CRandomDocument::fill(IZelBillboard& billboard)
{
    extend(*billboard.getNames());
    billboard.setKind(random.integer(0, 2));
    billboard.setNbFaces(random.integer());
    billboard.setAnimate(random.flag());
    billboard.setScale(random.number());
    billboard.setNormal(random.point());
}

void CRandomDocument::fill(IZelBillboard::IZelBBName& name)
{
    // The last of several names with one language would take the place of the first.
    const auto letter = [&] { return 'a' + random.below(26); };
    const std::uint32_t first = letter();
    name.setLanguage(first * 256 + letter());
    name.setText(random.text());
}

void CRandomDocument::fill(IZelQuad& quad)
{
    double corners[9];
    for (double& value : corners)
        value = random.number();
    quad.setTriangle(corners);
    quad.setQuadId(random.integer());
}

void CRandomDocument::fill(IZelTexture& texture)
{
    texture.setURL(random.url());
    texture.setOrigin(random.point());
    texture.setXAxis(random.point());
    texture.setYAxis(random.point());
    texture.setWidth(random.number());
    texture.setHeight(random.number());
    texture.setCutOut1Used(random.flag());
    texture.setCutOut1(random.color());
    texture.setCutOut2Used(random.flag());
    texture.setCutOut2(random.color());
    texture.setCutSet(random.flag());
}

} // namespace ZelTest
