#include "objects/C3DPlant.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

class Plant : public testing::Test {
protected:
    /// Reads a plant with these object data.
    void read(const std::string& data, const std::string& text = "3DPlant")
    {
        const CTestElement source("<E><Object.Definition Placement=\"Vertical\" "
                                  "LightGroupID=\"00000000000000000000000000000000\"><Class en=\"" +
                                  text + "\"/><Anchor/><Up/>" + data + "</Object.Definition></E>");
        CZelXMLIO io(mDocument.ref(), true);
        mDefinition->getDefinition(io, source.element());
    }
    std::string dataText()
    {
        const CTestElement target;
        mDefinition->data().copyInto(*target.element());
        const std::string text = target.text();
        return text.substr(text.find("<Object.Data"));
    }
    IZel3DPlant* plant() { return mDefinition->as3DPlant(); }

    CTestDocument mDocument;
    TZelComPtr<CZelZelObjectDefinition> mDefinition{new CZelZelObjectDefinition(mDocument.ref())};
};

std::string setUp(const char* month, const char* color, const char* id)
{
    const std::string date = std::string("<Month>") + month +
                             "</Month><Day>2</Day><Hour>3</Hour><Minute>4</Minute>"
                             "<Year>2005</Year>";
    return "<Plant.Setup Color=\"" + std::string(color) + "\" Id=\"" + id + "\"><StartTime>" +
           date + "</StartTime><EndTime>" + date + "</EndTime></Plant.Setup>";
}

constexpr const char* kId = "FFEEDDCCBBAA99887766554433221100";

} // namespace

TEST_F(Plant, IsOfNoTypeAndWithoutSetUpsAtFirst)
{
    mDefinition->setClass("3DPlant");
    EXPECT_EQ(plant()->getPlantType(), 0);
    EXPECT_EQ(plant()->getPlantSetUps()->getNbObjects(), 0);
    mDefinition->prepareForWrite();
    EXPECT_EQ(dataText(), "<Object.Data Plant.Type=\"Undefined\"><Instance.Data/><Plant.Setups/>"
                          "</Object.Data></E>");
}

TEST_F(Plant, ASaveCanBeRepeated)
{
    mDefinition->setClass("3DPlant");
    plant()->setPlantType(2);
    IZel3DPlant::IPlantSetUp* made = plant()->getPlantSetUps()->newZelObject(-1);
    EXPECT_FALSE(made->getId().isNull());
    mDefinition->prepareForWrite();
    const std::string once = dataText();
    mDefinition->prepareForWrite();
    EXPECT_EQ(dataText(), once);
}

TEST_F(Plant, SetUpsComeBack)
{
    const std::string data =
        "<Object.Data Plant.Type=\"Flower\"><Plant.Setups>" + setUp("1", "Red", kId) +
        setUp("5", "Red", "00000000000000000000000000000007") + "</Plant.Setups></Object.Data>";
    read(data);
    EXPECT_EQ(plant()->getPlantType(), 2);
    ASSERT_EQ(plant()->getPlantSetUps()->getNbObjects(), 2);
    EXPECT_EQ(plant()->getPlantSetUps()->getZelObject(0)->getId(), CZelUUID(kId));
    EXPECT_EQ(plant()->getPlantSetUps()->getZelObject(1)->getStartTime()->getMonth(), 5);
    mDefinition->prepareForWrite();
    EXPECT_EQ(dataText(), data + "</E>");
}

TEST_F(Plant, WhatItDoesNotKnowStays)
{
    const std::string unknown = "<Later a=\"1\"><!--c-->t<X/></Later><Instance.Data q=\"\"/>";
    read("<Object.Data Q=\"1\" Plant.Type=\"Tree\"><Plant.Setups><Lost/></Plant.Setups>" + unknown +
         "</Object.Data>");
    plant()->setPlantType(2);
    mDefinition->prepareForWrite();
    EXPECT_EQ(dataText(), "<Object.Data Q=\"1\" Plant.Type=\"Flower\">" + unknown +
                              "<Plant.Setups/></Object.Data></E>");
}

TEST_F(Plant, AGroupIsAPlantToo)
{
    read("<Object.Data Plant.Type=\"Fern\"><Plant.Setups/></Object.Data>", "3DPlantGroupInstances");
    ASSERT_NE(plant(), nullptr);
    EXPECT_EQ(plant()->getPlantType(), 8);
}

TEST_F(Plant, WithoutSetUpsInTheFileTheTypeIsNotLookedAt)
{
    for (const char* data : {"<Object.Data/>", "<Object.Data Plant.Type=\"Tree\"/>",
                             "<Object.Data Plant.Type=\"Bad\"/>"}) {
        read(data);
        EXPECT_EQ(plant()->getPlantType(), 0) << data;
        EXPECT_EQ(plant()->getPlantSetUps()->getNbObjects(), 0) << data;
    }
}

TEST_F(Plant, BadDataFailAndLeaveNoInterface)
{
    struct {
        const char* data;
        const char* failure;
    } cases[] = {
        {"<Object.Data><Plant.Setups/></Object.Data>",
         "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Plant.Type"},
        {"<Object.Data Plant.Type=\"tree\"><Plant.Setups/></Object.Data>",
         "Invalid label (tree) [Undefined..Fern]"},
        {"<Object.Data Plant.Type=\"Tree\"><Plant.Setups><Plant.Setup/></Plant.Setups>"
         "</Object.Data>",
         "CZelXMLGet::CZelXMLGet - NULL ptr"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(messageOf([&] { read(each.data); }), each.failure);
        EXPECT_STREQ(mDefinition->getClass(), "3DPlant");
        EXPECT_EQ(plant(), nullptr);
        mDefinition->prepareForWrite();
        EXPECT_EQ(dataText(), std::string(each.data) + "</E>") << "the data stay as they are";
    }
}

TEST_F(Plant, TypesHaveTheirLabels)
{
    const char* labels[] = {"Undefined", "Tree",   "Flower",     "Bushes", "PottedPlant",
                            "PalmTree",  "Cactus", "WaterPlant", "Fern"};
    mDefinition->setClass("3DPlant");
    for (int i = 0; i < 9; ++i) {
        plant()->setPlantType(i);
        mDefinition->prepareForWrite();
        EXPECT_NE(dataText().find(std::string("Plant.Type=\"") + labels[i] + "\""),
                  std::string::npos);
    }
    plant()->setPlantType(9);
    EXPECT_EQ(messageOf([&] { mDefinition->prepareForWrite(); }),
              "No label for the value (9) [Undefined..Fern]");
}

TEST_F(Plant, SetUpsNeedNoDocument)
{
    TZelComPtr loose(new CZelZelObjectDefinition(nullptr));
    loose->setClass("3DPlant");
    const CZelUUID id = loose->as3DPlant()->getPlantSetUps()->newZelObject(-1)->getId();
    loose->prepareForWrite();
    loose->setClass("3DPlantGroupInstances");
    ASSERT_EQ(loose->as3DPlant()->getPlantSetUps()->getNbObjects(), 1);
    EXPECT_EQ(loose->as3DPlant()->getPlantSetUps()->getZelObject(0)->getId(), id);
}
