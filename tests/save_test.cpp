#include "tests/support/CClientDocument.h"
#include "tests/support/CClientStorage.h"
#include "tests/support/savedText.h"
#include "tests/support/zelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// What a save writes, in which order, and what it does when it can't.

namespace {

using namespace OvZel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using ZelTest::CClientDocument;
using ZelTest::CClientStorage;
using ZelTest::CMemoryReadStream;
using ZelTest::CMemoryWriteStream;
using ZelTest::component;
using ZelTest::components;
using ZelTest::flat;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kIdC;
using ZelTest::kNoId;
using ZelTest::kRed;
using ZelTest::level;
using ZelTest::section;
using ZelTest::zelFile;

using CMessages = CClientDocument::CMessages;

const std::string kNoPoints = section("Points", "\n0 \n");
const std::string kNoPolygons = section("Polygons", "\n0 \n");

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

/// What stands in "Zel.File", with nothing in the sections whose content has tests of its own.
std::string sections(CClientDocument& document)
{
    std::string text = flat(document.save());
    const std::string begin = "<Zel.File>", end = "</Zel.File>";
    text = text.substr(text.find(begin) + begin.size());
    text.resize(text.rfind(end));
    for (const char* tag : {"File.Info", "Heliodons", "Object.Definition", "Layers.Info",
                            "Tmp.Render.Parameters", "Working.Window"})
        text = ZelTest::abbreviated(text, tag);
    return text;
}

/// The sections that a save adds at the end, but for those that stand elsewhere.
std::string added(const std::vector<std::string>& elsewhere = {})
{
    std::string text;
    for (const std::string& name : ZelTest::kAddedSections)
        if (std::find(elsewhere.begin(), elsewhere.end(), name) == elsewhere.end())
            text += "<" + name + "/>";
    return text;
}

const std::string kNoPreview = section("Preview.Image", "");

// A new document

TEST(Save, ANewDocumentWritesItsFrame)
{
    CClientDocument document;
    document->setApplication("Tool", "1.2");
    setId(document->getFileInfo(), kIdA);
    const std::string saved = document.save();
    EXPECT_EQ(saved.substr(0, saved.find("\t<Heliodons>")),
              R"(<?xml version="1.0" encoding="UTF-8"?>
<?Zel library="6.0.6" file="6.0" min_version="6.0.0" safe_version="6.0.4"?>
<?Application name="Tool" version="1.2"?>
<Zel.File>
	<Preview.Image><![CDATA[]]></Preview.Image>
	<File.Info UUID="AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA">
		<Origin X="0.000000" Y="0.000000" Z="0.000000"/>
	</File.Info>
	<Images/>
	<Points><![CDATA[
0 
]]></Points>
	<Polygons><![CDATA[
0 
]]></Polygons>
)");
    EXPECT_THAT(saved, testing::EndsWith("\t<ExternalDefinitions/>\n\t<Working.Window>\n\t\t"
                                         "<Parallel.Views/>\n\t</Working.Window>\n</Zel.File>\n"));
    EXPECT_THAT(document.takeMessages(), IsEmpty());

    CMemoryReadStream stream(saved);
    auto value = IZelMgr::eUnknown;
    EXPECT_TRUE(IZelMgr::checkFormat2(&stream, &value, nullptr, nullptr, 0));
    EXPECT_EQ(value, IZelMgr::eOtherApplication);
    document->setApplication("Vendralis", "6.0");
    CMemoryReadStream known(document.save());
    EXPECT_TRUE(IZelMgr::checkFormat2(&known, &value, nullptr, nullptr, 0));
    EXPECT_EQ(value, IZelMgr::eSame);
}

TEST(Save, TheVersionSaysWhatAReaderIsTold)
{
    const CZelVersion old{5, 0, 0};
    const struct {
        const CZelVersion* version;
        const char* format;
    } cases[] = {
        {&old,
         "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"5.0.0\" safe_version=\"5.0.0\"?>"},
        {nullptr,
         "<?Zel library=\"6.0.6\" file=\"6.0\" min_version=\"6.0.0\" safe_version=\"6.0.4\"?>"},
    };
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("", "<?Zel library=\"2.01\" file=\"5.0\"?>")));
    for (const auto& item : cases) {
        CMemoryWriteStream stream;
        EXPECT_TRUE(document->writeVersion(&stream, nullptr, item.version));
        EXPECT_THAT(stream.text, HasSubstr(item.format));
    }
    // What was read stays known.
    EXPECT_EQ(*document->getLibraryVersion(), (CZelVersion{2, 0, 1}));
}

TEST(Save, TheSaveVersionIsKnownWhileTheSaveRuns)
{
    const CZelVersion old{5, 1, 2};
    const CZelVersion usual{6, 0, 0};
    for (const CZelVersion* version : {&old, static_cast<const CZelVersion*>(nullptr)}) {
        CClientDocument document;
        std::vector<CZelVersion> seen;
        const auto look = [&] { seen.push_back(*document.more().getSaveVersion()); };
        document.feedback.onProgress = [&] {
            look();
            return true;
        };
        CClientStorage storage;
        storage.onWriter = look;
        CMemoryWriteStream stream;
        EXPECT_TRUE(document->writeVersion(&stream, &storage, version));
        ASSERT_EQ(seen.size(), 4U); // two blocks, for each the storage and one progress
        for (const CZelVersion& found : seen)
            EXPECT_EQ(found, version != nullptr ? *version : usual);
        EXPECT_EQ(*document.more().getSaveVersion(), usual);

        stream.room = 0; // also after a save that fails
        EXPECT_FALSE(document->writeVersion(&stream, nullptr, version));
        EXPECT_EQ(*document.more().getSaveVersion(), usual);
    }
}

TEST(Save, TheApplicationInstructionIsRenewedIfThereIsOne)
{
    CClientDocument document;
    document->setApplication("Tool", "1");
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_THAT(document.save(), Not(HasSubstr("Application")));
    EXPECT_TRUE(document.read(
        zelFile("", std::string(ZelTest::kFormat) + "<?Application name=\"Vendralis\"?>")));
    EXPECT_THAT(document.save(), HasSubstr("?>\n<?Application name=\"Tool\" version=\"1\"?>\n"));
}

// Streams

TEST(Save, WhatTheStreamAnswersIsNotLookedAt)
{
    CClientDocument document;
    CMemoryWriteStream stream;
    stream.answersNothing = true;
    EXPECT_TRUE(document->write(&stream, nullptr));
    EXPECT_THAT(stream.text, testing::EndsWith("</Zel.File>\n"));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Save, WhatTheStreamThrowsFailsTheSave)
{
    CClientDocument document;
    CMemoryWriteStream stream;
    stream.room = 0;
    EXPECT_FALSE(document->write(&stream, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Error \"disk full\" while writting"));
    EXPECT_FALSE(document->write(nullptr, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Error \"Unknown exception\" while writting"));

    class CStream : public CMemoryWriteStream {
    public:
        std::uint32_t write(const void*, std::uint32_t) override { throw 1; }
    } odd;
    EXPECT_FALSE(document->write(&odd, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknownm exception while writting"));
    stream.room = std::string::npos;
    EXPECT_TRUE(document->write(&stream, nullptr));
}

TEST(Save, ABadNameStopsItBeforeTheFirstByte)
{
    CClientDocument document;
    OrvaneXML::XIXMLElement* file =
        document->getApplicationData("Mine")->GetNode()->GetParent()->GetNode()->GetParent();
    for (const char* name : {"two words", "", "a<b", "a\"b"}) {
        OrvaneXML::XIXMLElement* bad = file->AddElement(file->MakeKey(name));
        EXPECT_FALSE(document.write()) << name;
        EXPECT_EQ(document.written, "");
        const CMessages messages = document.takeMessages();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_THAT(messages[0], testing::StartsWith("Error \""));
        EXPECT_THAT(messages[0], testing::EndsWith("\" while writting"));
        bad->Destroy();
    }
    file->AddElement(file->MakeKey("3D.Name"))->AddText("a\rb\x01");
    EXPECT_TRUE(document.write());
    CClientDocument other;
    EXPECT_TRUE(other.read(document.written));
    EXPECT_EQ(sections(other), sections(document));
}

// What goes and what stays

TEST(Save, ClientDataIsGoneAlsoAfterASaveThatFails)
{
    CClientDocument document;
    document->getApplicationData("Mine")->AddText("secret");
    EXPECT_THAT(document.save(), Not(HasSubstr("Application.Data")));
    CMemoryWriteStream stream;
    stream.room = 0;
    document->getApplicationData("Mine")->AddText("secret");
    EXPECT_FALSE(document->write(&stream, nullptr));
    EXPECT_EQ(document->getApplicationData("Mine")->GetFirstText(), nullptr);
}

TEST(Save, LegacySectionsAreDropped)
{
    CClientDocument document;
    std::string legacy;
    for (const char* tag : {"Heliodon", "Image", "Preview", "Ambient", "Atmosphere", "Background",
                            "Panoramas", "Current.Id"})
        legacy += "<" + std::string(tag) + "><X/></" + tag + "><" + tag + "/>";
    EXPECT_TRUE(document.read(zelFile(legacy + "<Other><Ambient/></Other>")));
    EXPECT_EQ(sections(document), kNoPreview + "<File.Info/><Images/>" + kNoPoints + kNoPolygons +
                                      "<Other><Ambient/></Other>" + added());
}

TEST(Save, WhatNobodyKnowsComesBackByteForByte)
{
    const std::string unknown =
        "<Unknown b=\"1\" a=\"&lt;&amp;&gt;&quot;\" b=\"2\"><!-- c -- d --><?pi some  data?><E/>"
        "<F>  text &amp; more </F><G> </G></Unknown>";
    const std::string opaque = section("Opaque", " \n<>&\x01]] >\xC3\xA9 ");
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile(unknown + opaque)));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Error \"CData block unknown\" while parsing 'Opaque' data block"));
    for (int i = 0; i < 2; ++i) {
        const std::string saved = document.save();
        EXPECT_THAT(saved, HasSubstr(opaque));
        EXPECT_THAT(flat(saved), HasSubstr(unknown));
    }
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

// Places

TEST(Save, SectionsKeepTheirPlaces)
{
    const std::string frame = kNoPreview + "<File.Info/>";
    const std::string laidOut = frame + "<Images/>" + kNoPoints + kNoPolygons;
    const struct {
        std::string given, saved;
    } cases[] = {
        // New sections: the fixed ones behind the preview, the others at the end.
        {"<A/>", laidOut + "<A/>" + added()},
        // A section keeps the place of the first of its name, all others go.
        {"<A/><Tmp.Render.Parameters><X/></Tmp.Render.Parameters><B/><Tmp.Render.Parameters/><C/>",
         laidOut + "<A/><Tmp.Render.Parameters/><B/><C/>" + added({"Tmp.Render.Parameters"})},
        {"<A/><Layers><X/></Layers><B/><Layers/><Lights a=\"1\"/><C/>",
         laidOut + "<A/><Layers/><B/><Lights/><C/>" + added({"Layers", "Lights"})},
        {"<Object.Definition/><A/><Object.Definition/>",
         laidOut + "<Object.Definition/><A/>" + added({"Object.Definition"})},
        // The pictures always stand behind the preview, the file information between them.
        {"<A/><Images/><B/><Preview.Image/><C/><File.Info><Origin/></File.Info><D/>",
         "<A/><B/>" + laidOut + "<C/><D/>" + added()},
        // Meshes are laid out anew.
        {"<Polygons/><A/><Points/><B/><Points/>", laidOut + "<A/><B/>" + added()},
        // Working windows go to the end.
        {"<Working.Window><V/></Working.Window><A/>", laidOut + "<A/>" + added()},
        // An empty section of components stays where it is.
        {"<A/><InternalComponentDefinitions/><B/>",
         laidOut + "<A/><InternalComponentDefinitions/><B/>" + added()},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_TRUE(document.read(zelFile(item.given))) << item.given;
        EXPECT_EQ(sections(document), item.saved) << item.given;
        EXPECT_EQ(sections(document), item.saved) << item.given;
    }
}

TEST(Save, TheWorkingWindowHoldsTheWorkingViewsAlone)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<Working.Window><V/></Working.Window>")));
    EXPECT_EQ(ZelTest::elementOf(document.save(), "Working.Window"),
              "<Working.Window><Parallel.Views/></Working.Window>");
}

TEST(Save, TheSecondSaveChangesNothing)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<A/><Images/><Preview.Image/><File.Info><Origin/>"
                                      "</File.Info><B/>")));
    const std::string first = document.save();
    EXPECT_EQ(document.save(), first);
    CClientDocument other;
    EXPECT_TRUE(other.read(first));
    EXPECT_EQ(other.save(), first);

    CClientDocument fresh;
    const std::string written = fresh.save();
    EXPECT_EQ(fresh.save(), written);
}

TEST(Save, TheFileInformationIsRenewedInItsElement)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<File.Info UUID=\"" + kIdA +
                                      "\" Other=\"1\"><More/><Origin X=\"1\" Y=\"2\" Z=\"3\"/>"
                                      "</File.Info>")));
    setId(document->getFileInfo(), kIdB);
    const double origin[] = {4, 5, 6};
    document->getFileInfo()->setOrigin(origin);
    document->getFileInfo()->setOrigin(nullptr);
    EXPECT_THAT(flat(document.save()),
                HasSubstr("<File.Info UUID=\"" + kIdB +
                          "\" Other=\"1\"><Origin X=\"4.000000\" Y=\"5.000000\" Z=\"6.000000\"/>"
                          "<More/></File.Info>"));
    CMemoryReadStream stream(document.written);
    IZelFileInfo* info = nullptr;
    IZelMgr::readFileInfo(&info, &stream);
    EXPECT_EQ(*info->getBasicData()->getId(), CZelUUID(kIdB.c_str()));
    EXPECT_EQ(info->getOrigin()[2], 6.0);
    info->Release();
}

TEST(Save, TheNameOfTheSceneIsRenewedInItsPlace)
{
    CClientDocument source;
    source->getObjectDefinition()->getName()->setText(0x656E, "House");
    const std::string given = ZelTest::elementOf(source.save(), "Object.Definition");
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<Other><Name en=\"A\"/></Other>" + given + "<B/>")));
    EXPECT_THAT(flat(document.save()), HasSubstr("</Other>" + given + "<B/>"));
    document->getObjectDefinition()->getName()->setText(0x6465, "Hütte");
    document->getObjectDefinition()->getName()->setText(0x656E, nullptr);
    std::string changed = given;
    const std::string name = "<Name en=\"House\"/>";
    changed.replace(changed.find(name), name.size(), "<Name de=\"Hütte\"/>");
    // Another element of that name elsewhere isn't meant.
    EXPECT_THAT(flat(document.save()),
                HasSubstr("<Other><Name en=\"A\"/></Other>" + changed + "<B/>"));
}

// Pictures

TEST(Save, PicturesGoOutWithTheirIdentifiers)
{
    CClientDocument document;
    const std::uint8_t red[] = {0xFF, 0, 0, 0xFF};
    setId(document->getImages()->newZelObject(-1), kIdA);
    document->getImages()->getZelObject(0)->setImage(1, 1, red);
    setId(document->getImages()->newZelObject(0), kIdB); // without a picture, in front
    document->getPreviewImage()->setImage(1, 1, red);
    const std::string images = "<Images><Image UUID=\"" + kIdB +
                               "\"><![CDATA[]]></Image><Image UUID=\"" + kIdA + "\"><![CDATA[" +
                               kRed + "]]></Image></Images>";
    EXPECT_EQ(sections(document), section("Preview.Image", kRed) + "<File.Info/>" + images +
                                      kNoPoints + kNoPolygons + added());
    // The next save finds the pictures as they are then.
    document->getImages()->removeObject(0);
    document->getPreviewImage()->setImage(0, 0, nullptr);
    EXPECT_THAT(flat(document.save()), HasSubstr("<Images><Image UUID=\"" + kIdA + "\"><![CDATA[" +
                                                 kRed + "]]></Image></Images>"));
    EXPECT_THAT(document.written, HasSubstr(kNoPreview));
    document->getImages()->removeAllObjects();
    EXPECT_THAT(document.save(), HasSubstr("<Images/>"));
}

// Components

std::string meshOf(int x, int material)
{
    return section("Points", "\n1 \n" + std::to_string(x) + ".0 0.0 0.0 \n") +
           section("Polygons", "\n1 \np\t" + std::to_string(material) + " 1 0 \n");
}

void fill(IZelZelObjectDefinition* definition, int x, int material)
{
    *definition->getPoints()->newZelObject(-1) = {static_cast<double>(x), 0, 0};
    IZelPolygon* polygon = definition->getPolygons()->newZelObject(-1);
    polygon->setMaterial(material);
    polygon->getVertices()->newZelObject(-1);
}

/// What stands behind a mesh, without its content.
const std::string kObject = "<Object.Definition/>";

TEST(Save, ComponentsTakeThePlaceOfTheDocumentsMesh)
{
    CClientDocument document;
    fill(addDefinition(document, kIdA), 3, 4);
    document->getDefinitions()->getZelObject(0)->setGeometryLevel(-2);
    addDefinition(document, kIdB);
    const std::string wrappers = component(kIdA, level(-2) + meshOf(3, 4) + kObject) +
                                 component(kIdB, level(0) + kNoPoints + kNoPolygons + kObject);
    EXPECT_EQ(sections(document),
              kNoPreview + "<File.Info/><Images/>" + components(wrappers) + added());
    EXPECT_THAT(document.takeMessages(), IsEmpty());

    CClientDocument other;
    EXPECT_TRUE(other.read(document.written));
    EXPECT_EQ(other->getDefinitions()->getNbObjects(), 2);
    EXPECT_EQ(other->getDefinitions()->getZelObject(0)->getGeometryLevel(), -2);
    EXPECT_EQ(sections(other), sections(document));
    EXPECT_EQ(other.written, document.written);

    // Without components the document has a mesh of its own again.
    document->getDefinitions()->removeAllObjects();
    EXPECT_THAT(sections(document), HasSubstr("<Images/>" + kNoPoints + kNoPolygons +
                                              "<InternalComponentDefinitions/><Heliodons/>"));
}

TEST(Save, WrappersAreMadeAnewFromTheirList)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(
        zelFile("<A/>" +
                components("<!--c-->" + component(kIdA, "<In.Front/>" + level(1) + meshOf(1, 2)) +
                           component(kIdB, level(2) + meshOf(3, 4) + "<Other/>") + "<Foreign/>") +
                "<B/>")));
    TZelObjectMgr<IZelZelObjectDefinition>* definitions = document->getDefinitions();
    definitions->moveObject(1, 0);
    fill(definitions->newZelObject(1), 5, 6);
    setId(definitions->getZelObject(1), kIdC);
    definitions->getZelObject(2)->setGeometryLevel(9);
    const std::string a = component(kIdA, level(9) + meshOf(1, 2) + kObject);
    const std::string b = component(kIdB, level(2) + meshOf(3, 4) + kObject);
    const std::string c = component(kIdC, level(0) + meshOf(5, 6) + kObject);
    EXPECT_EQ(sections(document),
              kNoPreview + "<File.Info/><Images/><A/>" + components(b + c + a) + "<B/>" + added());
    definitions->removeObject(0);
    EXPECT_THAT(sections(document), HasSubstr(components(c + a)));
    setId(definitions->getZelObject(1), kIdB);
    EXPECT_THAT(sections(document),
                HasSubstr(components(c + component(kIdB, level(9) + meshOf(1, 2) + kObject))));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Save, WrappersOfASecondSectionMoveToTheFirst)
{
    CClientDocument document;
    const std::string a = component(kIdA, level(0) + meshOf(1, 2));
    const std::string b = component(kIdB, level(0) + meshOf(3, 4));
    EXPECT_TRUE(document.read(zelFile(components(a) + "<A/>" + components(b))));
    EXPECT_THAT(sections(document),
                HasSubstr(components(component(kIdA, level(0) + meshOf(1, 2) + kObject) +
                                     component(kIdB, level(0) + meshOf(3, 4) + kObject)) +
                          "<A/>" + added()));
}

TEST(Save, AMeshThatIsLeftOutIsTold)
{
    const CMessages warning = {"Document geometry isn't written: internal components are present"};
    CClientDocument document;
    addDefinition(document, kIdA);
    document->getObjectDefinition()->getPoints()->newZelObject(-1);
    EXPECT_TRUE(document.write()); // the mesh of the scene is never saved
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    document->getPoints()->newZelObject(-1);
    EXPECT_TRUE(document.write());
    EXPECT_EQ(document.takeMessages(), warning);
    document->getPoints()->removeAllObjects();
    document->getPolygons()->newZelObject(-1);
    EXPECT_TRUE(document.write());
    EXPECT_EQ(document.takeMessages(), warning);
    document->getDefinitions()->removeAllObjects();
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Save, ANullIdentifierFailsItsBlocksAndTheRestIsWritten)
{
    CClientDocument document;
    addDefinition(document, kNoId);
    EXPECT_FALSE(document.write());
    EXPECT_THAT(document.takeMessages(), ElementsAre("CPointsProvider::Write2 - NULL UUID",
                                                     "CPolygonsProvider::Write2 - NULL UUID"));
    EXPECT_THAT(document.written, testing::EndsWith("</Zel.File>\n"));
    setId(document->getDefinitions()->getZelObject(0), kIdA);
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Save, AHoledPolygonLosesItsSmoothing)
{
    CClientDocument document;
    IZelPolygon* polygon = document->getPolygons()->newZelObject(-1);
    polygon->setSmooth(true);
    polygon->getHoles()->newZelObject(-1);
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Holed polygon smoothed (smoothing will be loss)"));
    EXPECT_THAT(document.written, HasSubstr(section("Polygons", "\n1 \nh\t0 2 0 0 \n")));
}

// Client storage

const std::string kStored =
    section("Points", "\n1 \n1.0 2.0 3.0 \n") + section("Polygons", "\n1 \np\t9 3 0 1 2 \n");

TEST(SaveStorage, TheGivenOneGoesBeforeTheOneThatIsSetAndThatBeforeTheDocument)
{
    CClientDocument document;
    CClientStorage given, set;
    EXPECT_TRUE(document.write(&given));
    EXPECT_THAT(flat(document.written), HasSubstr(kStored));
    EXPECT_THAT(given.calls, ElementsAre("writer " + kNoId, "writer " + kNoId));
    EXPECT_EQ(given.nbAlive, 0);

    EXPECT_TRUE(document.write());
    EXPECT_THAT(flat(document.written), HasSubstr(kNoPoints + kNoPolygons));

    EXPECT_EQ(document->setExtStorageWriter(&set), nullptr);
    EXPECT_TRUE(document.write());
    EXPECT_THAT(flat(document.written), HasSubstr(kStored));
    EXPECT_EQ(set.calls.size(), 2U);
    given.calls.clear();
    EXPECT_TRUE(document.write(&given));
    EXPECT_EQ(given.calls.size(), 2U);
    EXPECT_EQ(set.calls.size(), 2U);
    EXPECT_EQ(document->setExtStorageWriter(nullptr), &set);
    EXPECT_EQ(document->setExtStorageWriter(nullptr), nullptr);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(SaveStorage, ComponentsAreAskedForByIdentifier)
{
    CClientDocument document;
    CClientStorage storage;
    addDefinition(document, kIdA);
    addDefinition(document, kIdB);
    EXPECT_TRUE(document.write(&storage));
    EXPECT_THAT(storage.calls, ElementsAre("writer " + kIdA, "writer " + kIdA, "writer " + kIdB,
                                           "writer " + kIdB));
    EXPECT_THAT(ZelTest::abbreviated(flat(document.written), "Object.Definition"),
                HasSubstr(components(component(kIdA, level(0) + kStored + kObject) +
                                     component(kIdB, level(0) + kStored + kObject))));
}

TEST(SaveStorage, FaultsOfTheClientFailTheSaveAndTheRestIsWritten)
{
    using EFault = CClientStorage::EFault;
    const struct {
        EFault fault;
        std::string points, polygons;
    } cases[] = {
        {EFault::NullObject, "CPointsProvider::Write2 - No geometry writer",
         "CPolygonsProvider::Write2 - Current writter is NULL"},
        {EFault::CreateThrows, "no storage", "no storage"},
        {EFault::Throws, "storage broke", "storage broke"},
        {EFault::ThrowsInt, "Unknown provider writing exception",
         "Unknown provider writing exception"},
        {EFault::False, "CPointsProvider::Write2 - External storage cancel IO",
         "CPolygonsProvider::Write2 - External storage cancel IO"},
        {EFault::NegativeCount, "CPointsProvider::Write2 - External storage return -1",
         "CPolygonsProvider::Write2 - External storage return -1"},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        CClientStorage storage, set;
        document->setExtStorageWriter(&set);
        storage.fault = item.fault;
        EXPECT_FALSE(document.write(&storage));
        EXPECT_THAT(document.takeMessages(), ElementsAre(item.points, item.polygons));
        EXPECT_THAT(document.written, testing::EndsWith("</Zel.File>\n"));
        EXPECT_EQ(storage.nbAlive, 0);
        EXPECT_EQ(document->setExtStorageWriter(nullptr), &set);
        EXPECT_TRUE(document.write());
    }
}

TEST(SaveStorage, OneThatIsTakenAwayDuringTheSaveIsMissed)
{
    CClientDocument document;
    CClientStorage storage;
    storage.onWriter = [&] { document->setExtStorageWriter(nullptr); };
    EXPECT_FALSE(document.write(&storage));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("CZEL::getGeometryWriter - No external geometry reader set"));
}

TEST(SaveStorage, TheWriterIsBackAlsoWhenTheStreamFails)
{
    CClientDocument document;
    CClientStorage given, set;
    document->setExtStorageWriter(&set);
    CMemoryWriteStream stream;
    stream.room = 0;
    EXPECT_FALSE(document->write(&stream, &given));
    EXPECT_EQ(document->setExtStorageWriter(nullptr), &set);
}

// Cancel

TEST(SaveCancel, EndsTheSaveAtEachProgressCall)
{
    CClientDocument source;
    fill(addDefinition(source, kIdA), 1, 2);
    fill(addDefinition(source, kIdB), 3, 4);
    const std::string file = source.save();
    CClientDocument whole;
    const auto prepare = [&](CClientDocument& document) {
        ASSERT_TRUE(document.read(file));
        document.feedback.reports.clear();
    };
    prepare(whole);
    EXPECT_TRUE(whole.write());
    const std::size_t nbReports = whole.feedback.reports.size();
    EXPECT_THAT(whole.feedback.reports, ElementsAre(std::pair(0, 2000), std::pair(1000, 2000),
                                                    std::pair(0, 2000), std::pair(1000, 2000)));
    for (std::size_t i = 0; i < nbReports; ++i) {
        CClientDocument document;
        prepare(document);
        CClientStorage storage, set;
        document->setExtStorageWriter(&set);
        std::size_t nbCalls = 0;
        document.feedback.onProgress = [&] { return nbCalls++ < i; };
        EXPECT_FALSE(document.write(&storage));
        EXPECT_EQ(nbCalls, i + 1);
        EXPECT_THAT(document.takeMessages(), ElementsAre("Operation cancelled"));
        EXPECT_THAT(document.written, Not(HasSubstr("</Zel.File>")));
        EXPECT_EQ(storage.nbAlive, 0);
        EXPECT_EQ(document->setExtStorageWriter(nullptr), &set);
        EXPECT_EQ(*document.more().getSaveVersion(), (CZelVersion{6, 0, 0}));
        document.feedback.onProgress = nullptr;
        EXPECT_EQ(document.save(), file);
    }
}

TEST(SaveCancel, WhatProgressThrowsFailsTheBlocksAlone)
{
    CClientDocument document;
    document.feedback.onProgress = []() -> bool { throw std::runtime_error("no time"); };
    EXPECT_FALSE(document.write());
    EXPECT_THAT(document.takeMessages(), ElementsAre("no time", "no time"));
    EXPECT_THAT(document.written, testing::EndsWith("</Zel.File>\n"));
}

} // namespace
