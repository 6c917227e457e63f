#include "tests/support/CClientDocument.h"
#include "tests/support/savedText.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <zel/IZelBasicData.h>
#include <zel/IZelImage.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelZelObjectDefinition.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Components and the instances that name them, and the two forms of a definition on its own.

using namespace OvZel;
using OrvaneXML::XIXMLElement;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using ZelTest::CClientDocument;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kIdC;
using ZelTest::kNoId;

namespace {

void setId(IZelBasic* object, const std::string& id)
{
    const CZelUUID value(id.c_str());
    object->getBasicData()->setId(&value);
}

IZelZelObjectDefinition* addDefinition(CClientDocument& document, const std::string& id)
{
    IZelZelObjectDefinition* made = document->getDefinitions()->newZelObject(-1);
    setId(made, id);
    return made;
}

void addInstance(CClientDocument& document, const char* kind, const std::string& component)
{
    IZelObjectInstance* made = document->getObjectInstances()->newZelObject(-1);
    made->setClass(kind);
    if (IZelInternalComponentInstance* own = made->asInternalComponentInstance())
        own->setComponentUUID(CZelUUID(component.c_str()));
}

/// First digit of what each instance names, "-" for one that names no component.
std::vector<std::string> namedBy(CClientDocument& document)
{
    std::vector<std::string> found;
    for (std::int32_t i = 0; i < document->getObjectInstances()->getNbObjects(); ++i) {
        const IZelInternalComponentInstance* own =
            document->getObjectInstances()->getZelObject(i)->asInternalComponentInstance();
        found.push_back(own != nullptr ? ZelTest::textOf(own->getComponentUUID()).substr(0, 1)
                                       : "-");
    }
    return found;
}

/// The file with another library's version.
std::string asWrittenBy(std::string file, const std::string& version)
{
    const std::string own = "library=\"6.0.6\"";
    return file.replace(file.find(own), own.size(), "library=\"" + version + "\"");
}

/// An element of the client's in the tree, which a save writes.
XIXMLElement* ownElement(CClientDocument& document)
{
    XIXMLElement* file =
        document->getApplicationData("Mine")->GetNode()->GetParent()->GetNode()->GetParent();
    return file->AddElement(file->MakeKey("Kept"));
}

} // namespace

TEST(Components, AReferenceOfAnEarlyLibraryIsMended)
{
    using CKinds = std::vector<std::pair<const char*, std::string>>;
    const CKinds one = {{"ModelObject", kNoId}, {"ModelObject", kNoId}};
    const struct {
        const char* version;
        CKinds instances;
        std::vector<std::string> found;
    } cases[] = {
        {"2.9.9", one, {"A", "0"}}, // the first instance alone
        {"3.0.0", one, {"A", "0"}},
        {"1.0.0", one, {"A", "0"}},
        {"3.0.1", one, {"0", "0"}},
        {"3.1.0", one, {"0", "0"}},
        {"6.0.6", one, {"0", "0"}},
        {"2.9.9", {{"ModelObject", kIdB}}, {"B"}},
        {"2.9.9", {{"ModelObject", kIdC}}, {"C"}}, // also one that names no definition
        {"2.9.9", {{"ZelObject", kNoId}, {"ModelObject", kNoId}}, {"-", "0"}},
        {"2.9.9", {}, {}},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(std::string(item.version) + " " + testing::PrintToString(item.found));
        CClientDocument source;
        const std::uint8_t pixel[4] = {};
        source->getPreviewImage()->setImage(1, 1, pixel); // early files are read with theirs
        addDefinition(source, kIdA);
        addDefinition(source, kIdB);
        for (const auto& [kind, component] : item.instances)
            addInstance(source, kind, component);
        CClientDocument document;
        ASSERT_TRUE(document.read(asWrittenBy(source.save(), item.version)));
        EXPECT_EQ(namedBy(document), item.found);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        // What was mended is written.
        CClientDocument other;
        ASSERT_TRUE(other.read(document.save()));
        EXPECT_EQ(namedBy(other), item.found);
    }
}

TEST(Components, WithoutDefinitionsThereIsNothingToMendWith)
{
    CClientDocument source;
    addInstance(source, "ModelObject", kNoId);
    CClientDocument document;
    ASSERT_TRUE(document.read(asWrittenBy(source.save(), "2.9.9")));
    EXPECT_THAT(namedBy(document), ElementsAre("0"));
}

TEST(Components, TheFirstDefinitionOfTheDocumentMendsAlsoWhenTheFileHasAnother)
{
    CClientDocument source;
    addDefinition(source, kIdB);
    addInstance(source, "ModelObject", kNoId);
    CClientDocument document;
    addDefinition(document, kIdA);
    ASSERT_TRUE(document.read(asWrittenBy(source.save(), "2.9.9")));
    EXPECT_THAT(namedBy(document), ElementsAre("A"));
}

TEST(Components, ALoadThatFailsMendsNothing)
{
    CClientDocument source;
    addDefinition(source, kIdA);
    addInstance(source, "ModelObject", kNoId);
    std::string file = asWrittenBy(source.save(), "2.9.9");
    const std::string last = "<ExternalDefinitions/>";
    file.replace(file.find(last), last.size(),
                 "<ExternalDefinitions><External.Definition UUID=\"12\"/></ExternalDefinitions>");
    CClientDocument document;
    EXPECT_FALSE(document.read(file));
    EXPECT_THAT(namedBy(document), ElementsAre("0"));
}

// A definition on its own

TEST(Components, OnItsOwnOneOfTheModelHasAWrapperAndAnyOtherIsPlain)
{
    const struct {
        const char* kind;
        bool isWrapped;
    } cases[] = {{"ModelObject", true}, {"ZelObject", false}, {"Spaceship", false}};
    for (const auto& item : cases) {
        SCOPED_TRACE(item.kind);
        CClientDocument document;
        IZelZelObjectDefinition* definition = addDefinition(document, kIdA);
        definition->setClass(item.kind);
        definition->setGeometryLevel(3);
        definition->getName()->setText(0x656E, "Ship");
        *definition->getPoints()->newZelObject(-1) = {1, 2, 3};
        XIXMLElement* own = ownElement(document);
        XIXMLElement* made = definition->getBasicData()->putInXML(own);
        ASSERT_NE(made, nullptr);
        EXPECT_STREQ(made->GetKey(),
                     item.isWrapped ? "InternalComponentDefinition" : "Object.Definition");
        const std::string saved = document.save();
        const std::string text =
            ZelTest::abbreviated(ZelTest::sectionOf(saved, "Kept"), "Object.Definition");
        const std::string mesh = "<Points><![CDATA[\n1 \n1.0 2.0 3.0 \n]]></Points>"
                                 "<Polygons><![CDATA[\n0 \n]]></Polygons>";
        EXPECT_EQ(text, item.isWrapped ? "<Kept>" +
                                             ZelTest::component(kIdA, ZelTest::level(3) + mesh +
                                                                          "<Object.Definition/>") +
                                             "</Kept>"
                                       : "<Kept><Object.Definition/></Kept>");
        // Among its like every one has a wrapper.
        EXPECT_EQ(ZelTest::abbreviated(ZelTest::sectionOf(saved, "InternalComponentDefinitions"),
                                       "Object.Definition"),
                  ZelTest::components(
                      ZelTest::component(kIdA, ZelTest::level(3) + mesh + "<Object.Definition/>")));

        // It is read from what it wrote.
        for (const bool getId : {false, true}) {
            IZelZelObjectDefinition* other = addDefinition(document, kIdB);
            other->setClass(item.kind);
            EXPECT_TRUE(other->getBasicData()->initWithXML(own, getId));
            EXPECT_STREQ(other->getName()->getText(0x656E), "Ship");
            EXPECT_EQ(other->getGeometryLevel(), item.isWrapped ? 3 : 0);
            EXPECT_EQ(*other->getBasicData()->getId(), CZelUUID((getId ? kIdA : kIdB).c_str()));
            EXPECT_EQ(other->getPoints()->getNbObjects(), 0); // meshes travel with documents alone
        }
        EXPECT_THAT(document.takeMessages(), IsEmpty());
    }
}

TEST(Components, OneOfTheModelAsksForItsWrapper)
{
    CClientDocument document;
    XIXMLElement* own = ownElement(document);
    IZelZelObjectDefinition* definition = addDefinition(document, kIdA);
    EXPECT_FALSE(definition->getBasicData()->initWithXML(own, true));
    const auto messages = document.takeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_THAT(messages[0], HasSubstr("CZelZelObjectDefinition::initWithXML : "
                                       "cannot find internal component definition node"));
    // Any other class is content with nothing.
    definition->setClass("ZelObject");
    EXPECT_TRUE(definition->getBasicData()->initWithXML(own, true));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Components, TheSceneIsPlainWhateverItsClass)
{
    for (const char* kind : {"ModelObject", "ZelObject", "Spaceship"}) {
        CClientDocument document;
        document->getObjectDefinition()->setClass(kind);
        *document->getObjectDefinition()->getPoints()->newZelObject(-1) = {1, 2, 3};
        const std::string saved = document.save();
        EXPECT_THAT(ZelTest::sectionOf(saved, "Object.Definition"),
                    HasSubstr("<Class en=\"" + std::string(kind) + "\"/>"));
        EXPECT_THAT(saved, Not(HasSubstr("InternalComponentDefinition")));
        EXPECT_THAT(saved, Not(HasSubstr("1.0 2.0 3.0"))); // its mesh is never written
        CClientDocument other;
        ASSERT_TRUE(other.read(saved));
        EXPECT_STREQ(other->getObjectDefinition()->getClass(), kind);
        EXPECT_EQ(other.save(), saved);
    }
}
