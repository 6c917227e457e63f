#include "tests/support/slots.h"

#include <zel/IZel3DPlant.h>
#include <zel/IZelAnimatedObject.h>
#include <zel/IZelExternalDefinition.h>
#include <zel/IZelLayer.h>
#include <zel/IZelLayerInfo.h>
#include <zel/IZelObjectLight.h>
#include <zel/IZelZelObjectDefinition.h>

using namespace OvZel;
using OrvaneXML::XIXMLElement;
using ZelTest::expectOrder;

// Behind the operations of IZelBasic come those of the interface itself.
constexpr std::ptrdiff_t kFirstOwn = 7;

TEST(Slots, IZelZelObjectDefinition)
{
    using I = IZelZelObjectDefinition;
    using CProperties = TZelObjectMgr<IZelProperty>;
    using CPoints = TZelObjectMgr<CZelPoint>;
    using CPolygons = TZelObjectMgr<IZelPolygon>;
    using CSetups = TZelObjectMgr<I::IZelZelObjectSetup>;
    expectOrder(kFirstOwn, {CONST_AT(const IZelString*, I::getName),
                            OTHER_AT(IZelString*, I::getName),
                            AT(I::getClass),
                            AT(I::setClass),
                            AT(I::getAnchor),
                            AT(I::setAnchor),
                            AT(I::getPlacement),
                            AT(I::setPlacement),
                            AT(I::getUp),
                            AT(I::setUp),
                            AT(I::getInitialAngle),
                            AT(I::setInitialAngle),
                            AT(I::getModelRotation),
                            AT(I::setModelRotation),
                            AT(I::getModelRotationMatrix),
                            AT(I::setModelRotationMatrix),
                            AT(I::getModelPosition),
                            AT(I::setModelPosition),
                            AT(I::getModelOrigin),
                            AT(I::setModelOrigin),
                            AT(I::prepareForWrite),
                            OTHER_AT(XIXMLElement*, I::getObjectData),
                            CONST_AT(const XIXMLElement*, I::getObjectData),
                            OTHER_AT(XIXMLElement*, I::getInstanceData),
                            CONST_AT(const XIXMLElement*, I::getInstanceData),
                            CONST_AT(const CProperties*, I::getProperties),
                            OTHER_AT(CProperties*, I::getProperties),
                            CONST_AT(const CPoints*, I::getPoints),
                            OTHER_AT(CPoints*, I::getPoints),
                            CONST_AT(const CPolygons*, I::getPolygons),
                            OTHER_AT(CPolygons*, I::getPolygons),
                            CONST_AT(const IZelString*, I::getDescription1),
                            OTHER_AT(IZelString*, I::getDescription1),
                            CONST_AT(const IZelString*, I::getDescription2),
                            OTHER_AT(IZelString*, I::getDescription2),
                            CONST_AT(const IZelString*, I::getComment),
                            OTHER_AT(IZelString*, I::getComment),
                            AT(I::getLightGroupID),
                            AT(I::setLightGroupID),
                            CONST_AT(const CSetups*, I::getSetups),
                            OTHER_AT(CSetups*, I::getSetups),
                            CONST_AT(const IZel3DPlant*, I::as3DPlant),
                            OTHER_AT(IZel3DPlant*, I::as3DPlant),
                            CONST_AT(const IZelObjectLight*, I::asObjectLight),
                            OTHER_AT(IZelObjectLight*, I::asObjectLight),
                            CONST_AT(const IZelAnimatedObject*, I::asAnimatedObject),
                            OTHER_AT(IZelAnimatedObject*, I::asAnimatedObject),
                            AT(I::getGeometryLevel),
                            AT(I::setGeometryLevel)});
}

TEST(Slots, IZelZelObjectSetup)
{
    using I = IZelZelObjectDefinition::IZelZelObjectSetup;
    expectOrder(0, {CONST_AT(const IZelString*, I::getName), OTHER_AT(IZelString*, I::getName),
                    AT(I::getUUID), AT(I::setUUID)});
}

TEST(Slots, IZelObjectLight)
{
    using I = IZelObjectLight;
    expectOrder(0, {CONST_AT(const IZelZelObjectDefinition*, I::getDefinition),
                    OTHER_AT(IZelZelObjectDefinition*, I::getDefinition)});
}

TEST(Slots, IZel3DPlant)
{
    using I = IZel3DPlant;
    using CSetUps = TZelObjectMgr<I::IPlantSetUp>;
    expectOrder(0, {CONST_AT(const IZelZelObjectDefinition*, I::getDefinition),
                    OTHER_AT(IZelZelObjectDefinition*, I::getDefinition), AT(I::getPlantType),
                    AT(I::setPlantType), CONST_AT(const CSetUps*, I::getPlantSetUps),
                    OTHER_AT(CSetUps*, I::getPlantSetUps)});
}

TEST(Slots, IPlantSetUp)
{
    using I = IZel3DPlant::IPlantSetUp;
    expectOrder(0,
                {CONST_AT(const IZelTime*, I::getStartTime), OTHER_AT(IZelTime*, I::getStartTime),
                 CONST_AT(const IZelTime*, I::getEndTime), OTHER_AT(IZelTime*, I::getEndTime),
                 AT(I::getColor), AT(I::setColor), AT(I::getId), AT(I::setId)});
}

TEST(Slots, IZelAnimatedObject)
{
    using I = IZelAnimatedObject;
    using CTakes = TZelObjectMgr<I::IZelTake>;
    expectOrder(0, {AT(I::getExternalFileType), AT(I::setExternalFileType), AT(I::getExternalFile),
                    AT(I::setExternalFile), CONST_AT(const CTakes*, I::getTakes),
                    OTHER_AT(CTakes*, I::getTakes), AT(I::getIndex), AT(I::setIndex),
                    CONST_AT(const IZelZelObjectDefinition*, I::getDefinition),
                    OTHER_AT(IZelZelObjectDefinition*, I::getDefinition), AT(I::getInitialMatrix),
                    AT(I::setInitialMatrix)});
}

TEST(Slots, IZelTake)
{
    using I = IZelAnimatedObject::IZelTake;
    expectOrder(0, {AT(I::getDuration), AT(I::setDuration), AT(I::getFPS), AT(I::setFPS),
                    AT(I::getName), AT(I::setName), AT(I::getZMin), AT(I::setZMin), AT(I::getType),
                    AT(I::setType), AT(I::getZAngle), AT(I::setZAngle)});
}

TEST(Slots, IZelLayerHasNothingOfItsOwn)
{
    EXPECT_EQ(sizeof(IZelLayer), sizeof(IZelBasic));
    expectOrder(5, {AT(IZelLayer::getObjectLink), AT(IZelLayer::getBasicData)});
}

TEST(Slots, IZelLayerInfo)
{
    using I = IZelLayerInfo;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), AT(I::getActiveLayer),
                    AT(I::setActiveLayer), AT(I::getDefaultLayer), AT(I::setDefaultLayer)});
}

TEST(Slots, IZelExternalDefinition)
{
    using I = IZelExternalDefinition;
    using CProperties = TZelObjectMgr<IZelProperty>;
    expectOrder(kFirstOwn,
                {CONST_AT(const CProperties*, I::getProperties),
                 OTHER_AT(CProperties*, I::getProperties), AT(I::getURL), AT(I::setURL)});
}
