#include "objects/CZelObjectInstance.h"

#include "core/TPooledMgr.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/accessors.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <zel/IZel3DPlantRef.h>
#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelBBObjectInstance.h>
#include <zel/IZelGroupInstances.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelObjectLightRef.h>
#include <zel/IZelZelObjectInstance.h>

#include <cmath>
#include <limits>

using namespace OvZel;
using namespace ZelTest;
using OrvaneXML::XIXMLElement;

namespace OvZel {

bool operator==(const CZelBox& a, const CZelBox& b)
{
    return ZelTest::isSame(a.minimum, b.minimum) && ZelTest::isSame(a.maximum, b.maximum);
}

} // namespace OvZel

namespace {

TZelComPtr<CZelObjectInstance> newInstance()
{
    return TZelComPtr(new CZelObjectInstance(nullptr));
}

const CZelUUID kId("0123456789ABCDEF0123456789ABCDEF");

/// The interfaces that the delegate has, a letter each.
std::string kinds(IZelObjectInstance& instance)
{
    const IZelObjectInstance& constant = instance;
    std::string letters;
    letters += instance.asZelObjectInstance() != nullptr ? 'Z' : '-';
    letters += instance.as3DPlantRef() != nullptr ? 'P' : '-';
    letters += instance.asBBObjectInstance() != nullptr ? 'B' : '-';
    letters += instance.asObjectLightRef() != nullptr ? 'L' : '-';
    letters += instance.asAnimatedObjectInstance() != nullptr ? 'A' : '-';
    letters += instance.asInternalComponentInstance() != nullptr ? 'I' : '-';
    letters += instance.asGroupInstances() != nullptr ? 'G' : '-';
    EXPECT_EQ(constant.asZelObjectInstance(), instance.asZelObjectInstance());
    EXPECT_EQ(constant.as3DPlantRef(), instance.as3DPlantRef());
    EXPECT_EQ(constant.asBBObjectInstance(), instance.asBBObjectInstance());
    EXPECT_EQ(constant.asObjectLightRef(), instance.asObjectLightRef());
    EXPECT_EQ(constant.asAnimatedObjectInstance(), instance.asAnimatedObjectInstance());
    EXPECT_EQ(constant.asInternalComponentInstance(), instance.asInternalComponentInstance());
    EXPECT_EQ(constant.asGroupInstances(), instance.asGroupInstances());
    return letters;
}

} // namespace

TEST(ObjectInstance, ANewOne)
{
    const auto instance = newInstance();
    EXPECT_STREQ(instance->getClass(), "");
    EXPECT_STREQ(instance->getName(), "");
    EXPECT_FALSE(instance->getId()->isNull());
    EXPECT_EQ(instance->getUIValue(), 0xFFFFFFFFU);
    EXPECT_TRUE(instance->getAttachId().isNull());
    EXPECT_TRUE(isSame(instance->getTranslation(), {0, 0, 0}));
    EXPECT_TRUE(isSame(instance->getRotation(), {0, 0, 0}));
    EXPECT_TRUE(isSame(instance->getScale(), {1, 1, 1}));
    EXPECT_EQ(instance->getTriangleId(), -1);
    EXPECT_TRUE(isSame(instance->getNormal(), {0, 0, 1}));
    EXPECT_TRUE(isSame(instance->getAnchorPosition(), {0, 0, 0}));
    EXPECT_TRUE(isSame(instance->getUpVector(), {0, 0, 1}));
    EXPECT_EQ(instance->getPlacementProperty(), 1);
    EXPECT_EQ(instance->getInitialAngle(), 0.0);
    EXPECT_EQ(instance->getBoundingBox(), (CZelBox{{-1, -1, -1}, {1, 1, 1}}));
    EXPECT_FALSE(instance->getCoordinatesLocked());
    EXPECT_FALSE(instance->getScaleLocked());
    EXPECT_TRUE(isSame(instance->getCurrentPathDirection(), {0, 0, 0}));
    EXPECT_EQ(instance->getAnimationBehavior(), 0);
    EXPECT_FALSE(instance->getTarget());
    EXPECT_EQ(instance->getTransparency(), 0.0);
    EXPECT_TRUE(instance->getLayerId().isNull());
    EXPECT_FALSE(instance->getMaterialsDifferents());
    EXPECT_TRUE(instance->getOverloadId().isNull());
    EXPECT_TRUE(instance->getVisible());
    EXPECT_FALSE(instance->getOptimised());
    EXPECT_FALSE(instance->getSubInstance());
    EXPECT_EQ(instance->getProperties()->getNbObjects(), 0);
    EXPECT_STREQ(instance->getInstanceData()->GetKey(), "Instance.Data");
    EXPECT_EQ(kinds(*instance), "-------");
}

TEST(ObjectInstance, EveryValueIsStoredAsItComes)
{
    using I = IZelObjectInstance;
    const auto instance = newInstance();
    expectAccessors<I>(*instance, {ACCESS(I, AttachId, kId),
                                   ACCESS(I, Translation, (CZelPoint{1, 2, 3})),
                                   ACCESS(I, Rotation, (CZelPoint{4, 5, 6})),
                                   ACCESS(I, Scale, (CZelPoint{7, 8, -9})),
                                   ACCESS(I, TriangleId, -7),
                                   ACCESS(I, Normal, (CZelPoint{1, 1, 2})),
                                   ACCESS(I, AnchorPosition, (CZelPoint{1, 1, 3})),
                                   ACCESS(I, UpVector, (CZelPoint{1, 1, 4})),
                                   ACCESS(I, PlacementProperty, 77),
                                   ACCESS(I, InitialAngle, 1e9),
                                   ACCESS(I, BoundingBox, (CZelBox{{5, 5, 5}, {4, 4, 4}})),
                                   ACCESS(I, CoordinatesLocked, true),
                                   ACCESS(I, ScaleLocked, true),
                                   ACCESS(I, AnimationBehavior, -3),
                                   ACCESS(I, CurrentPathDirection, (CZelPoint{1, 1, 5})),
                                   ACCESS(I, Target, true),
                                   ACCESS(I, Transparency, 0.5),
                                   ACCESS(I, LayerId, kId),
                                   ACCESS(I, MaterialsDifferents, true),
                                   ACCESS(I, OverloadId, kId),
                                   ACCESS(I, Visible, false),
                                   ACCESS(I, Optimised, true),
                                   ACCESS(I, SubInstance, true)});
    instance->setAttachId(*instance->getId());
    EXPECT_EQ(instance->getAttachId(), *instance->getId()) << "it may stand on itself";
}

TEST(ObjectInstance, TransparencyIsClippedInSilence)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double given, kept;
    } cases[] = {{-0.5, 0}, {0, 0},        {0.25, 0.25},     {1, 1},           {1.000001, 1},
                 {2, 1},    {infinity, 1}, {-infinity, 0.0}, {std::nan(""), 0}};
    const auto instance = newInstance();
    for (auto [given, kept] : cases) {
        instance->setTransparency(given);
        EXPECT_EQ(instance->getTransparency(), kept) << "given " << given;
    }
}

TEST(ObjectInstance, EveryClassHasItsDelegate)
{
    const struct {
        const char* text;
        const char* kinds;
    } cases[] = {{"ModelObject", "-----I-"},
                 {"ZelObject", "Z------"},
                 {"3DPlant", "ZP-----"},
                 {"Billboard", "Z-B----"},
                 {"LightObject", "Z--L---"},
                 {"AnimatedObject", "Z---A--"},
                 {"GroupInstances", "------G"},
                 {"3DPlantGroupInstances", "-P----G"},
                 {"", "-------"},
                 {"Modelobject", "-------"},
                 {"ModelObject ", "-------"},
                 {"Something.Else", "-------"}};
    const auto instance = newInstance();
    for (const auto& [text, expected] : cases) {
        instance->setClass(text);
        EXPECT_STREQ(instance->getClass(), text);
        EXPECT_EQ(kinds(*instance), expected) << text;
    }
    instance->setClass(nullptr);
    EXPECT_STREQ(instance->getClass(), "");
}

TEST(ObjectInstance, DelegatesKnowTheirInstance)
{
    const auto instance = newInstance();
    const auto expectOwner = [&](const auto* part) {
        ASSERT_NE(part, nullptr);
        EXPECT_EQ(part->getObjectInstance(), instance.get());
        using I = std::remove_const_t<std::remove_pointer_t<decltype(part)>>;
        EXPECT_EQ(const_cast<I*>(part)->getObjectInstance(), instance.get());
    };
    for (const char* text :
         {"ZelObject", "3DPlant", "Billboard", "LightObject", "AnimatedObject"}) {
        instance->setClass(text);
        expectOwner(instance->asZelObjectInstance());
    }
    expectOwner(instance->asAnimatedObjectInstance());
    instance->setClass("3DPlant");
    expectOwner(instance->as3DPlantRef());
    instance->setClass("Billboard");
    expectOwner(instance->asBBObjectInstance());
    instance->setClass("LightObject");
    expectOwner(instance->asObjectLightRef());
    instance->setClass("ModelObject");
    expectOwner(instance->asInternalComponentInstance());
    instance->setClass("GroupInstances");
    expectOwner(instance->asGroupInstances());
    instance->setClass("3DPlantGroupInstances");
    expectOwner(instance->asGroupInstances());
    expectOwner(instance->as3DPlantRef());
}

TEST(ObjectInstance, TheSameClassAgainStartsFromTheSavedData)
{
    const auto instance = newInstance();
    instance->setClass("3DPlant");
    instance->as3DPlantRef()->setColor(2);
    instance->as3DPlantRef()->getTime()->setYear(1999);
    instance->prepareForWrite();
    instance->as3DPlantRef()->setColor(5);
    instance->setClass(instance->getClass());
    EXPECT_STREQ(instance->getClass(), "3DPlant");
    EXPECT_EQ(instance->as3DPlantRef()->getColor(), 2);
    EXPECT_EQ(instance->as3DPlantRef()->getTime()->getYear(), 1999);
}

TEST(ObjectInstance, ADelegateSeesAChangeOfTheDataAtTheNextSetClass)
{
    const auto instance = newInstance();
    instance->setClass("ModelObject");
    XIXMLElement* data = instance->getInstanceData();
    data->AddAttribute(data->MakeKey("Component.UUID"), textOf(kId).c_str());
    EXPECT_TRUE(instance->asInternalComponentInstance()->getComponentUUID().isNull());
    instance->setClass("ModelObject");
    EXPECT_EQ(instance->asInternalComponentInstance()->getComponentUUID(), kId);
    EXPECT_EQ(instance->getInstanceData(), data) << "a client's element stays";
}

TEST(ObjectInstance, AFailureOfTheDelegateLeavesTheClassWithoutOne)
{
    const auto instance = newInstance();
    XIXMLElement* data = instance->getInstanceData();
    data->AddAttribute(data->MakeKey("Component.UUID"), "no identifier");
    instance->setClass("GroupInstances");
    EXPECT_EQ(messageOf([&] { instance->setClass("ModelObject"); }),
              "CZelUUID::Hex2Int: Invalid hex value");
    EXPECT_STREQ(instance->getClass(), "ModelObject");
    EXPECT_EQ(kinds(*instance), "-------");
    EXPECT_STREQ(data->GetFirstAttribute()->GetValue(), "no identifier");
    instance->prepareForWrite();
}

TEST(ObjectInstance, TheUrlIsATextOfThePrivateData)
{
    const auto instance = newInstance();
    instance->setClass("Billboard");
    EXPECT_STREQ(instance->asZelObjectInstance()->getUrl(), "");
    EXPECT_STREQ(instance->asBBObjectInstance()->getUrl(), "");
    instance->asZelObjectInstance()->setUrl("one");
    instance->asBBObjectInstance()->setUrl("two");
    EXPECT_STREQ(instance->asZelObjectInstance()->getUrl(), "one");
    EXPECT_STREQ(instance->asBBObjectInstance()->getUrl(), "two");
    XIXMLElement* data = instance->getInstanceData();
    EXPECT_NE(data->FindElement(data->MakeKey("Url")), nullptr);
    EXPECT_NE(data->FindElement(data->MakeKey("URL")), nullptr);
    instance->setClass("GroupInstances");
    EXPECT_STREQ(instance->asGroupInstances()->getUrl(), "one");
    instance->asGroupInstances()->setUrl("three");
    instance->setClass("3DPlantGroupInstances");
    EXPECT_STREQ(instance->asGroupInstances()->getUrl(), "three");
}

TEST(ObjectInstance, ListsAreMadeOnceAndKnowTheDocument)
{
    CTestDocument document;
    CZelObjectInstance instance(document.ref());
    instance.setClass("AnimatedObject");
    const IZelObjectInstance& constant = instance;
    IZelZelObjectInstance& object = *instance.asZelObjectInstance();
    IZelAnimatedObjectInstance& animated = *instance.asAnimatedObjectInstance();
    EXPECT_EQ(constant.getProperties(), instance.getProperties());
    EXPECT_EQ(std::as_const(object).getProperties(), object.getProperties());
    EXPECT_EQ(std::as_const(object).getLights(), object.getLights());
    EXPECT_EQ(std::as_const(animated).getOverloadedProperties(),
              animated.getOverloadedProperties());
    EXPECT_NE(instance.getProperties(), object.getProperties());
    EXPECT_NE(object.getProperties(), animated.getOverloadedProperties());
    instance.getProperties()->removeObject(0);
    object.getLights()->removeObject(0);
    EXPECT_EQ(document.takeMessages().size(), 2U);
}

TEST(ObjectInstance, AListThatAClientKeepsOutlivesItsClassAndItsInstance)
{
    CTestDocument document;
    TZelComPtr instance(new CZelObjectInstance(document.ref()));
    instance->setClass("Billboard");
    const TZelComPtr lights(instance->asZelObjectInstance()->getLights());
    const TZelComPtr materials(instance->asBBObjectInstance()->getOverloadedProperties());
    const TZelComPtr own(instance->getProperties());
    lights->newZelObject(-1);
    instance->setClass("ZelObject");
    EXPECT_NE(instance->asZelObjectInstance()->getLights(), lights.get());
    EXPECT_EQ(lights->getNbObjects(), 1);
    EXPECT_NE(materials->newZelObject(-1), nullptr);
    const IZelObjectLink* owner = own->append()->getOwnerLink();
    EXPECT_EQ(owner->getOwnerLink(), instance->getObjectLink());
    instance.reset();
    EXPECT_EQ(owner->getOwnerLink(), nullptr);
    EXPECT_EQ(owner->getMgrRef(), document.ref());
    EXPECT_EQ(lights->getNbObjects(), 1);
    EXPECT_EQ(materials->getNbObjects(), 1);
}

TEST(ObjectInstance, AnElementOfAClientStaysWhileTheDelegateSaves)
{
    const auto instance = newInstance();
    instance->setClass("ModelObject");
    XIXMLElement* data = instance->getInstanceData();
    XIXMLElement* own = data->AddElement(data->MakeKey("Own"));
    instance->asInternalComponentInstance()->setComponentUUID(kId);
    instance->prepareForWrite();
    EXPECT_EQ(instance->getInstanceData(), data);
    EXPECT_EQ(data->FindElement(data->MakeKey("Own")), own);
    EXPECT_STREQ(data->FindAttribute(data->MakeKey("Component.UUID"))->GetValue(),
                 textOf(kId).c_str());
}

TEST(ObjectInstance, AnswersToItsManager)
{
    CTestDocument document;
    const TZelComPtr mgr(new TPooledMgr<CZelObjectInstance, IZelObjectInstance>(document.ref()));
    IZelObjectInstance* instance = mgr->newZelObject(-1);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(*mgr->getObjectIID(), IZelObjectInstance::sIID);
    instance->AddRef();
    mgr->removeAllObjects();
    instance->setClass("ZelObject");
    document.die();
    EXPECT_NE(instance->asZelObjectInstance(), nullptr);
    instance->setClass("Billboard");
    instance->Release();
}
