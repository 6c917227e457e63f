#include "tests/support/slots.h"

#include <zel/IZel3DPlant.h>
#include <zel/IZel3DPlantRef.h>
#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelBBMgrData.h>
#include <zel/IZelBBObjectInstance.h>
#include <zel/IZelGroupInstances.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelObjectLightRef.h>
#include <zel/IZelZelObjectInstance.h>

using namespace OvZel;
using ZelTest::expectOrder;

namespace {

using TLights = TZelObjectMgr<IZelLight>;
using TProperties = TZelObjectMgr<IZelProperty>;

} // namespace

#define GET_AND_SET(interface, name) AT(interface::get##name), AT(interface::set##name)
#define TWO_SLOTS(type, operation) CONST_AT(const type*, operation), OTHER_AT(type*, operation)

TEST(Slots, IZelObjectInstance)
{
    using I = IZelObjectInstance;
    using OrvaneXML::XIXMLElement;
    expectOrder(7, {GET_AND_SET(I, Class),
                    GET_AND_SET(I, AttachId),
                    AT(I::setTranslation),
                    AT(I::getTranslation),
                    AT(I::setRotation),
                    AT(I::getRotation),
                    AT(I::setScale),
                    AT(I::getScale),
                    GET_AND_SET(I, TriangleId),
                    GET_AND_SET(I, Normal),
                    GET_AND_SET(I, AnchorPosition),
                    GET_AND_SET(I, UpVector),
                    GET_AND_SET(I, PlacementProperty),
                    GET_AND_SET(I, InitialAngle),
                    GET_AND_SET(I, BoundingBox),
                    GET_AND_SET(I, CoordinatesLocked),
                    GET_AND_SET(I, ScaleLocked),
                    AT(I::prepareForWrite),
                    OTHER_AT(XIXMLElement*, I::getInstanceData),
                    CONST_AT(const XIXMLElement*, I::getInstanceData),
                    TWO_SLOTS(IZelZelObjectInstance, I::asZelObjectInstance),
                    TWO_SLOTS(IZel3DPlantRef, I::as3DPlantRef),
                    TWO_SLOTS(IZelBBObjectInstance, I::asBBObjectInstance),
                    TWO_SLOTS(IZelObjectLightRef, I::asObjectLightRef),
                    TWO_SLOTS(IZelAnimatedObjectInstance, I::asAnimatedObjectInstance),
                    TWO_SLOTS(IZelInternalComponentInstance, I::asInternalComponentInstance),
                    GET_AND_SET(I, AnimationBehavior),
                    GET_AND_SET(I, CurrentPathDirection),
                    GET_AND_SET(I, Target),
                    GET_AND_SET(I, Transparency),
                    GET_AND_SET(I, LayerId),
                    GET_AND_SET(I, MaterialsDifferents),
                    GET_AND_SET(I, OverloadId),
                    TWO_SLOTS(IZelGroupInstances, I::asGroupInstances),
                    GET_AND_SET(I, Visible),
                    GET_AND_SET(I, Optimised),
                    GET_AND_SET(I, SubInstance),
                    TWO_SLOTS(TProperties, I::getProperties)});
}

TEST(Slots, IZelZelObjectInstance)
{
    using I = IZelZelObjectInstance;
    expectOrder(0, {TWO_SLOTS(IZelObjectInstance, I::getObjectInstance), GET_AND_SET(I, Url),
                    TWO_SLOTS(TProperties, I::getProperties), GET_AND_SET(I, CurrentOverload),
                    TWO_SLOTS(TLights, I::getLights), GET_AND_SET(I, ExternalDefinitionId)});
}

TEST(Slots, IZelGroupInstances)
{
    using I = IZelGroupInstances;
    expectOrder(0, {TWO_SLOTS(IZelObjectInstance, I::getObjectInstance), GET_AND_SET(I, Url)});
}

TEST(Slots, IZelInternalComponentInstance)
{
    using I = IZelInternalComponentInstance;
    expectOrder(0, {TWO_SLOTS(IZelObjectInstance, I::getObjectInstance),
                    GET_AND_SET(I, ComponentUUID), TWO_SLOTS(TProperties, I::getProperties)});
}

TEST(Slots, IZelObjectLightRef)
{
    expectOrder(0, {TWO_SLOTS(IZelObjectInstance, IZelObjectLightRef::getObjectInstance)});
}

TEST(Slots, IZelAnimatedObjectInstance)
{
    using I = IZelAnimatedObjectInstance;
    expectOrder(0, {GET_AND_SET(I, CurrentFrame), GET_AND_SET(I, CurrentTake),
                    GET_AND_SET(I, RealDuration), GET_AND_SET(I, StartFrame),
                    TWO_SLOTS(TProperties, I::getOverloadedProperties),
                    TWO_SLOTS(IZelObjectInstance, I::getObjectInstance)});
}

TEST(Slots, IZelBBObjectInstance)
{
    using I = IZelBBObjectInstance;
    expectOrder(
        0, {TWO_SLOTS(IZelObjectInstance, I::getObjectInstance), GET_AND_SET(I, OrientWithCamera),
            GET_AND_SET(I, VerticalFlip), GET_AND_SET(I, HorizontalFlip),
            GET_AND_SET(I, RenderType), GET_AND_SET(I, Shininess), GET_AND_SET(I, Roughness),
            GET_AND_SET(I, Brightness), GET_AND_SET(I, Contrast), GET_AND_SET(I, Kind),
            GET_AND_SET(I, DefinitionSize), GET_AND_SET(I, DefinitionName), GET_AND_SET(I, Url),
            GET_AND_SET(I, CurrentConfig), TWO_SLOTS(TProperties, I::getOverloadedProperties)});
}

TEST(Slots, IZel3DPlantRef)
{
    using I = IZel3DPlantRef;
    expectOrder(0, {TWO_SLOTS(IZelObjectInstance, I::getObjectInstance),
                    GET_AND_SET(I, HeliodonAttached), TWO_SLOTS(IZelTime, I::getTime),
                    GET_AND_SET(I, Color)});
}

TEST(Slots, IZelBBMgrDataHasItsFileFormFirst)
{
    using I = IZelBBMgrData;
    using TQuads = TZelObjectMgr<IZelQuad>;
    expectOrder(0, {AT(I::putInXML), AT(I::initWithXML), TWO_SLOTS(IZelBillboard, I::getBillboard),
                    TWO_SLOTS(TQuads, I::getQuads), GET_AND_SET(I, Property),
                    TWO_SLOTS(IZelTexture, I::getTexture)});
}

TEST(Slots, IZelBillboard)
{
    using I = IZelBillboard;
    using TNames = TZelObjectMgr<I::IZelBBName>;
    expectOrder(0, {TWO_SLOTS(TNames, I::getNames), GET_AND_SET(I, Kind), GET_AND_SET(I, NbFaces),
                    GET_AND_SET(I, Animate), GET_AND_SET(I, Scale), GET_AND_SET(I, Normal)});
}

TEST(Slots, IZelBBName)
{
    using I = IZelBillboard::IZelBBName;
    expectOrder(0, {GET_AND_SET(I, Language), GET_AND_SET(I, Text)});
}

TEST(Slots, IZelTexture)
{
    using I = IZelTexture;
    expectOrder(0, {GET_AND_SET(I, URL), GET_AND_SET(I, Origin), GET_AND_SET(I, XAxis),
                    GET_AND_SET(I, YAxis), GET_AND_SET(I, Width), GET_AND_SET(I, Height),
                    GET_AND_SET(I, CutOut1Used), GET_AND_SET(I, CutOut1),
                    GET_AND_SET(I, CutOut2Used), GET_AND_SET(I, CutOut2), GET_AND_SET(I, CutSet)});
}
