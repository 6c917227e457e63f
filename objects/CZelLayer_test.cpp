#include "objects/CZelLayer.h"

#include "objects/CZelExternalDefinition.h"
#include "objects/CZelLayerInfo.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr CZelUUID kOwnId("0123456789ABCDEF0123456789ABCDEF");
constexpr const char* kOwnIdText = "0123456789ABCDEF0123456789ABCDEF";
constexpr const char* kFullId = "FFEEDDCCBBAA99887766554433221100";
constexpr const char* kNullId = "00000000000000000000000000000000";

template <class Class>
TZelComPtr<Class> makeKnown(CTestDocument& document)
{
    TZelComPtr<Class> object(new Class(document.ref()));
    object->setId(&kOwnId);
    return object;
}

class LayerInfo : public testing::Test {
protected:
    void read(const std::string& map)
    {
        const CTestElement source("<E><Layers.Info Active.Layer=\"" + std::string(kFullId) + "\">" +
                                  map + "</Layers.Info></E>");
        EXPECT_TRUE(mInfo.initWithXML(source.element(), false));
    }
    std::string saved()
    {
        const CTestElement target;
        mInfo.putInXML(target.element());
        return target.text();
    }

    CTestDocument mDocument;
    CZelLayerInfo mInfo{mDocument.ref()};
    const CZelUUID mFirst{"11111111111111111111111111111111"};
    const CZelUUID mSecond{"22222222222222222222222222222222"};
};

} // namespace

TEST(Layer, FileForm)
{
    const std::vector<CRow> rows = {
        required(attribute("UUID", kFullId, kOwnIdText),
                 "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        required(raw("Name", "<Name en=\"Walls\"/>", "<Name en=\"\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        optional(integer("UI.Value", 12, 0)),
    };
    for (const bool getUUID : {true, false}) {
        CForm form;
        form.getUUID = getUUID; // the identifier is what a layer is all about, and always taken
        checkElement("Layer", rows, makeKnown<CZelLayer>, form);
    }
}

TEST(Layer, ANameWithoutEnglishTextFails)
{
    CTestDocument document;
    const auto layer = makeKnown<CZelLayer>(document);
    const CTestElement source("<E><Layer UUID=\"" + std::string(kFullId) +
                              "\"><Name fr=\"Murs\"/></Layer></E>");
    EXPECT_FALSE(layer->initWithXML(source.element(), true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXMLBasicData::initWithXML : "
                                       "CZelXMLGet::GetAttributeLanguage - NULL ptr"});
    EXPECT_EQ(*layer->getId(), CZelUUID(kFullId));
}

TEST(ExternalDefinition, FileForm)
{
    const std::vector<CRow> rows = {
        attribute("UUID", kFullId, kOwnIdText),
        optional(text("URL", "chair.zel", "")),
        ofKind(optional(raw("Properties", "<Properties/>", "<Properties/>")), "list Property"),
    };
    checkElement("External.Definition", rows, makeKnown<CZelExternalDefinition>);

    std::vector<CRow> kept = rows;
    kept[0].full = kOwnIdText; // the identifier of the file is left alone
    CForm form;
    form.getUUID = false;
    checkElement("External.Definition", kept, makeKnown<CZelExternalDefinition>, form);
}

TEST(ExternalDefinition, ReadsWhatIsThere)
{
    CTestDocument document;
    const auto definition = makeKnown<CZelExternalDefinition>(document);
    CZelXMLIO io(document.ref(), false);
    const auto read = [&](const std::string& content) {
        const CTestElement source("<E><External.Definition UUID=\"" + std::string(kFullId) + "\">" +
                                  content + "</External.Definition></E>");
        definition->getXML(io, source.element());
    };
    definition->setURL("old.zel");
    definition->getProperties()->append();
    read("");
    EXPECT_STREQ(definition->getURL(), "old.zel");
    EXPECT_EQ(definition->getProperties()->size(), 1);
    EXPECT_EQ(*definition->getId(), kOwnId);
    read("<URL/><Properties/>");
    EXPECT_STREQ(definition->getURL(), "");
    EXPECT_EQ(definition->getProperties()->size(), 0);
    definition->setURL("new.zel");
    definition->setURL(nullptr);
    EXPECT_STREQ(definition->getURL(), "");
}

TEST_F(LayerInfo, FileForm)
{
    const auto entry = [](const char* name) { return attribute(name, kFullId, kNullId); };
    const std::vector<CRow> rows = {
        required(attribute("Active.Layer", kFullId, kNullId),
                 "CZelXMLGet::GetUUID - NULL ptr for tag Active.Layer"),
        optional(
            part("Default.Layer.Map", {entry("Plant3D"), entry("ZelObject"), entry("Billboard"),
                                       entry("LightObject"), entry("AnimatedObject")})),
    };
    checkElement<CZelLayerInfo>("Layers.Info", rows);
}

TEST_F(LayerInfo, AnUnknownClassHasNoLayerAndGetsNone)
{
    EXPECT_TRUE(mInfo.getActiveLayer().isNull());
    EXPECT_TRUE(mInfo.getDefaultLayer("ModelObject").isNull());
    EXPECT_TRUE(mInfo.getDefaultLayer(nullptr).isNull());
    mInfo.setDefaultLayer("ModelObject", mFirst);
    mInfo.setDefaultLayer(nullptr, mSecond);
    EXPECT_EQ(mInfo.getDefaultLayer("ModelObject"), mFirst);
    EXPECT_EQ(mInfo.getDefaultLayer(""), mSecond);
    EXPECT_TRUE(mInfo.getDefaultLayer("modelObject").isNull());
    mInfo.setActiveLayer(mSecond);
    EXPECT_EQ(mInfo.getActiveLayer(), mSecond);
}

TEST_F(LayerInfo, OtherClassesAreNotWritten)
{
    const std::string before = saved();
    for (const char* other : {"ModelObject", "3DPlantGroupInstances", "Plant3D", "Spaceship"})
        mInfo.setDefaultLayer(other, mFirst);
    EXPECT_EQ(saved(), before);
    mInfo.setDefaultLayer("3DPlant", mFirst);
    EXPECT_NE(saved().find("Plant3D=\"11111111111111111111111111111111\""), std::string::npos);
}

TEST_F(LayerInfo, TheOlderNameOfPlantsSetsTwoEntries)
{
    read("<Default.Layer.Map 3DPlant=\"11111111111111111111111111111111\"/>");
    EXPECT_EQ(mInfo.getDefaultLayer("3DPlant"), mFirst);
    EXPECT_EQ(mInfo.getDefaultLayer("3DPlantGroupInstances"), mFirst);
    EXPECT_EQ(mInfo.getActiveLayer(), CZelUUID(kFullId));
}

TEST_F(LayerInfo, TheNewerNameOfPlantsSetsOneEntryAndIsReadSecond)
{
    read("<Default.Layer.Map Plant3D=\"22222222222222222222222222222222\"/>");
    EXPECT_EQ(mInfo.getDefaultLayer("3DPlant"), mSecond);
    EXPECT_TRUE(mInfo.getDefaultLayer("3DPlantGroupInstances").isNull());
    read("<Default.Layer.Map Plant3D=\"22222222222222222222222222222222\" "
         "3DPlant=\"11111111111111111111111111111111\"/>");
    EXPECT_EQ(mInfo.getDefaultLayer("3DPlant"), mSecond);
    EXPECT_EQ(mInfo.getDefaultLayer("3DPlantGroupInstances"), mFirst);
}

TEST_F(LayerInfo, WhatTheFileDoesNotNameStays)
{
    mInfo.setDefaultLayer("Billboard", mFirst);
    read("");
    read("<Default.Layer.Map/>");
    read("<Default.Layer.Map ZelObject=\"22222222222222222222222222222222\"/>");
    EXPECT_EQ(mInfo.getDefaultLayer("Billboard"), mFirst);
    EXPECT_EQ(mInfo.getDefaultLayer("ZelObject"), mSecond);
}

TEST_F(LayerInfo, ASecondSaveReplacesTheFirst)
{
    const CTestElement target;
    mInfo.putInXML(target.element());
    OrvaneXML::XIXMLElement* second = mInfo.putInXML(target.element());
    EXPECT_EQ(target.element()->GetFirstElement(), second);
    EXPECT_EQ(second->GetNextElement(), nullptr);
}
