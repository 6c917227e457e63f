#include "objects/CZelZelObjectDefinition.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/messageOf.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <zel/IZel3DPlant.h>
#include <zel/IZelAnimatedObject.h>
#include <zel/IZelObjectLight.h>

#include <gtest/gtest.h>

#include <vector>

using namespace OvZel;

namespace {

constexpr double kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

class Definition : public testing::Test {
protected:
    using CMessages = std::vector<std::string>;

    ZelTest::CTestDocument mDocument;
    TZelComPtr<CZelZelObjectDefinition> mDefinition{new CZelZelObjectDefinition(mDocument.ref())};
    const CZelZelObjectDefinition& mConst = *mDefinition;
};

void expectPoint(const CZelPoint& point, double x, double y, double z)
{
    EXPECT_EQ(point.x, x);
    EXPECT_EQ(point.y, y);
    EXPECT_EQ(point.z, z);
}

} // namespace

TEST_F(Definition, IsAVerticalModelObjectAtFirst)
{
    EXPECT_STREQ(mConst.getClass(), "ModelObject");
    expectPoint(mConst.getAnchor(), 0, 0, 0);
    expectPoint(mConst.getUp(), 0, 0, 1);
    EXPECT_EQ(mConst.getPlacement(), 1);
    EXPECT_EQ(mConst.getInitialAngle(), 0.0);
    expectPoint(mConst.getModelRotation(), 0, 0, 0);
    expectPoint(mConst.getModelPosition(), 0, 0, 0);
    EXPECT_EQ(mConst.getModelOrigin(), 0);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(mConst.getModelRotationMatrix()[i], kIdentity[i]) << i;
    EXPECT_TRUE(mConst.getLightGroupID().isNull());
    EXPECT_EQ(mConst.getGeometryLevel(), 0);
    EXPECT_EQ(mConst.getUIValue(), 0xFFFFFFFFu);
    EXPECT_EQ(mDefinition->getProperties()->size(), 0);
    EXPECT_EQ(mDefinition->getSetups()->size(), 0);
    EXPECT_EQ(mDefinition->getPoints()->size(), 0);
    EXPECT_EQ(mDefinition->getPolygons()->size(), 0);
    for (const IZelString* text : {mConst.CDefinitionName::getName(), mConst.getDescription1(),
                                   mConst.getDescription2(), mConst.getComment()})
        EXPECT_EQ(text->getNbTexts(), 0u);
}

TEST_F(Definition, SettersStoreWhatTheyAreGiven)
{
    mDefinition->setAnchor({1, 2, 3});
    mDefinition->setUp({4, 5, 6});
    mDefinition->setPlacement(77);
    mDefinition->setInitialAngle(-1000.5);
    mDefinition->setModelRotation({7, 8, 9});
    mDefinition->setModelPosition({10, 11, 12});
    mDefinition->setModelOrigin(-3);
    mDefinition->setGeometryLevel(-5);
    const double matrix[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    mDefinition->setModelRotationMatrix(matrix);
    mDefinition->setModelRotationMatrix(nullptr);
    const CZelUUID id("00112233445566778899AABBCCDDEEFF");
    mDefinition->setLightGroupID(id);

    expectPoint(mConst.getAnchor(), 1, 2, 3);
    expectPoint(mConst.getUp(), 4, 5, 6);
    EXPECT_EQ(mConst.getPlacement(), 77);
    EXPECT_EQ(mConst.getInitialAngle(), -1000.5);
    expectPoint(mConst.getModelRotation(), 7, 8, 9);
    expectPoint(mConst.getModelPosition(), 10, 11, 12);
    EXPECT_EQ(mConst.getModelOrigin(), -3);
    EXPECT_EQ(mConst.getGeometryLevel(), -5);
    EXPECT_EQ(mConst.getModelRotationMatrix()[15], 16.0);
    EXPECT_EQ(mConst.getLightGroupID(), id);
    EXPECT_EQ(mDocument.takeMessages(), CMessages{});
}

TEST_F(Definition, TheClassChoosesTheInterface)
{
    struct {
        const char* text;
        bool isPlant, isLight, isAnimated;
    } cases[] = {{"ModelObject", false, false, false},
                 {"ZelObject", false, false, false},
                 {"Billboard", false, false, false},
                 {"3DPlant", true, false, false},
                 {"3DPlantGroupInstances", true, false, false},
                 {"LightObject", false, true, false},
                 {"AnimatedObject", false, false, true},
                 {"lightobject", false, false, false},
                 {"LightObject ", false, false, false},
                 {"GroupInstances", false, false, false},
                 {"", false, false, false}};
    for (const auto& each : cases) {
        mDefinition->setClass(each.text);
        EXPECT_STREQ(mConst.getClass(), each.text);
        EXPECT_EQ(mDefinition->as3DPlant() != nullptr, each.isPlant) << each.text;
        EXPECT_EQ(mDefinition->asObjectLight() != nullptr, each.isLight) << each.text;
        EXPECT_EQ(mDefinition->asAnimatedObject() != nullptr, each.isAnimated) << each.text;
        EXPECT_EQ(mConst.as3DPlant(), mDefinition->as3DPlant());
        EXPECT_EQ(mConst.asObjectLight(), mDefinition->asObjectLight());
        EXPECT_EQ(mConst.asAnimatedObject(), mDefinition->asAnimatedObject());
    }
    mDefinition->setClass("LightObject");
    mDefinition->setClass(nullptr);
    EXPECT_STREQ(mConst.getClass(), "");
    EXPECT_EQ(mDefinition->asObjectLight(), nullptr);
}

TEST_F(Definition, TheInterfacesKnowTheirDefinition)
{
    mDefinition->setClass("LightObject");
    EXPECT_EQ(mDefinition->asObjectLight()->getDefinition(), mDefinition.get());
    EXPECT_EQ(mConst.asObjectLight()->getDefinition(), mDefinition.get());
    mDefinition->setClass("3DPlant");
    EXPECT_EQ(mDefinition->as3DPlant()->getDefinition(), mDefinition.get());
    EXPECT_EQ(mConst.as3DPlant()->getDefinition(), mDefinition.get());
    mDefinition->setClass("AnimatedObject");
    EXPECT_EQ(mDefinition->asAnimatedObject()->getDefinition(), mDefinition.get());
    EXPECT_EQ(mConst.asAnimatedObject()->getDefinition(), mDefinition.get());
}

TEST_F(Definition, ThePresentClassKeepsWhatIsNotSaved)
{
    mDefinition->setClass("3DPlant");
    mDefinition->as3DPlant()->setPlantType(4);
    mDefinition->setClass("3DPlant");
    mDefinition->setClass(mDefinition->getClass());
    EXPECT_EQ(mDefinition->as3DPlant()->getPlantType(), 4);
}

TEST_F(Definition, AnotherClassDropsWhatIsNotSaved)
{
    mDefinition->setClass("3DPlant");
    mDefinition->as3DPlant()->setPlantType(4);
    mDefinition->setClass("3DPlantGroupInstances");
    EXPECT_EQ(mDefinition->as3DPlant()->getPlantType(), 0);

    mDefinition->as3DPlant()->setPlantType(5);
    mDefinition->prepareForWrite();
    mDefinition->setClass("ZelObject");
    mDefinition->prepareForWrite();
    mDefinition->setClass("3DPlant");
    EXPECT_EQ(mDefinition->as3DPlant()->getPlantType(), 5) << "it was in the object data";
}

TEST_F(Definition, BadObjectDataLeaveTheClassWithoutAnInterface)
{
    const CZelXMLAdd data(mDefinition->getObjectData());
    data.AddAttribute("Plant.Type", "Bush");
    data.AddElement("Plant.Setups");
    mDefinition->setClass("LightObject");
    EXPECT_EQ(ZelTest::messageOf([&] { mDefinition->setClass("3DPlant"); }),
              "Invalid label (Bush) [Undefined..Fern]");
    EXPECT_STREQ(mConst.getClass(), "3DPlant");
    EXPECT_EQ(mDefinition->as3DPlant(), nullptr);
    EXPECT_EQ(mDefinition->asObjectLight(), nullptr);
    mDefinition->prepareForWrite();
    EXPECT_STREQ(CZelXMLGet(mDefinition->getObjectData()).GetOptionalAttribute("Plant.Type"),
                 "Bush");
}

TEST_F(Definition, TheDataElementsAreNeverMissing)
{
    EXPECT_STREQ(mDefinition->getObjectData()->GetKey(), "Object.Data");
    EXPECT_STREQ(mDefinition->getInstanceData()->GetKey(), "Instance.Data");
    EXPECT_EQ(mDefinition->getInstanceData()->GetNode()->GetParent(), mDefinition->getObjectData());
    EXPECT_EQ(mConst.getObjectData(), mDefinition->getObjectData());
    EXPECT_EQ(mConst.getInstanceData(), mDefinition->getInstanceData());
    mDefinition->getInstanceData()->Destroy();
    EXPECT_STREQ(mConst.getInstanceData()->GetKey(), "Instance.Data");
}

TEST_F(Definition, TheBasicNameIsTheNameInTheCurrentLanguage)
{
    constexpr std::uint32_t kFrench = 'f' * 256 + 'r';
    IZelString* name = mDefinition->CDefinitionName::getName();
    mDefinition->getBasicData()->setName("Chair");
    mDocument.ref()->setLanguage("fr");
    mDefinition->getBasicData()->setName("Chaise");
    EXPECT_EQ(name->getNbTexts(), 2u);
    EXPECT_STREQ(name->getText(kFrench), "Chaise");
    EXPECT_STREQ(mDefinition->getBasicData()->getName(), "Chaise");
    mDocument.ref()->setLanguage("en");
    EXPECT_STREQ(mDefinition->getBasicData()->getName(), "Chair");
}

TEST_F(Definition, SetupsHaveIdentifiersOfTheirOwn)
{
    CObjectSetup* first = mDefinition->getSetups()->append();
    CObjectSetup* second = mDefinition->getSetups()->append();
    EXPECT_FALSE(first->getUUID().isNull());
    EXPECT_NE(first->getUUID(), second->getUUID());
    second->setUUID(first->getUUID());
    EXPECT_EQ(first->getUUID(), second->getUUID());
    first->getName()->setCurrentText("One");
    EXPECT_STREQ(static_cast<const CObjectSetup*>(first)->getName()->getCurrentText(), "One");
    EXPECT_EQ(first->getName()->getNbTexts(), 1u);
    EXPECT_EQ(first->getMgrRef(), mDocument.ref());
}

TEST_F(Definition, AKeptDefinitionOutlivesItsDocument)
{
    mDefinition->setClass("AnimatedObject");
    mDocument.die();
    mDefinition->asAnimatedObject()->setExternalFile("walk.fbx");
    EXPECT_STREQ(mDefinition->asAnimatedObject()->getExternalFile(), "walk.fbx");
    mDefinition->setClass("3DPlant");
    EXPECT_NE(mDefinition->as3DPlant(), nullptr);
}
