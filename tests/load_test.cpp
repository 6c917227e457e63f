#include "tests/support/CClientDocument.h"
#include "tests/support/CClientStorage.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// What a load does with a file, and with one that isn't right.

namespace {

using namespace OvZel;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using ZelTest::CClientDocument;
using ZelTest::CClientStorage;
using ZelTest::CMemoryReadStream;
using ZelTest::component;
using ZelTest::components;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kNoId;
using ZelTest::kRed;
using ZelTest::level;
using ZelTest::section;
using ZelTest::zelFile;

using CMessages = CClientDocument::CMessages;

/// As kRed, in another colour.
const std::string kBlue = "00000001000000010000000100000001FF0000FF";

std::string image(const std::string& id, const std::string& bytes)
{
    return section("Image", bytes, id.empty() ? "" : " UUID=\"" + id + "\"");
}

std::string wrapper(const std::string& id, int value, const std::string& inside)
{
    return component(id, level(value) + inside);
}

/// A points block whose points have these x.
std::string points(const std::vector<int>& xs)
{
    std::string text = std::to_string(xs.size());
    for (const int x : xs)
        text += " " + std::to_string(x) + " 0 0";
    return section("Points", text + " ");
}

std::string polygons(int material)
{
    return section("Polygons", "1 p\t" + std::to_string(material) + " 3 0 1 2 ");
}

std::vector<int> xOf(TZelObjectMgr<CZelPoint>* list)
{
    std::vector<int> found;
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        found.push_back(static_cast<int>(list->getZelObject(i)->x));
    return found;
}

std::string idOf(IZelBasic* object)
{
    return ZelTest::textOf(*object->getBasicData()->getId());
}

/// "RRGGBB" of the first pixel, "none" without a picture.
std::string colorOf(IZelImage* picture)
{
    std::uint8_t* pixels = nullptr;
    picture->getImage(nullptr, nullptr, &pixels);
    if (pixels == nullptr)
        return "none";
    char text[16];
    std::snprintf(text, sizeof text, "%02X%02X%02X", pixels[0], pixels[1], pixels[2]);
    return text;
}

std::vector<std::string> colorsOf(CClientDocument& document)
{
    std::vector<std::string> found;
    for (std::int32_t i = 0; i < document->getImages()->getNbObjects(); ++i)
        found.push_back(colorOf(document->getImages()->getZelObject(i)));
    return found;
}

/// "id level: x x ..." for each definition.
std::vector<std::string> definitionsOf(CClientDocument& document)
{
    std::vector<std::string> found;
    for (std::int32_t i = 0; i < document->getDefinitions()->getNbObjects(); ++i) {
        IZelZelObjectDefinition* definition = document->getDefinitions()->getZelObject(i);
        std::string line = idOf(definition).substr(0, 1) + " " +
                           std::to_string(definition->getGeometryLevel()) + ":";
        for (const int x : xOf(definition->getPoints()))
            line += " " + std::to_string(x);
        found.push_back(line);
    }
    return found;
}

// The whole file

TEST(Load, RefusesWhatIsNoDocument)
{
    const struct {
        std::string text;
        CMessages messages;
    } cases[] = {
        {"<Zel.File><Working.Window/></Zel.File>", {"XML mais pas ZEL"}},
        {"<?xml version=\"1.0\"?><Zel.File/>", {"XML mais pas ZEL"}},
        {"<?Zel?><Zel.File><Working.Window/></Zel.File>", {"Not a valid zel file"}},
        {"<?Zel library=\"0.5\" file=\"1.0\"?><Zel.File/>", {"Not a valid zel file"}},
        {"", {"XML syntax error in line 1: no root element"}},
        // The required element fails without a text of its own.
        {std::string(ZelTest::kFormat) + "<Zel.File/>", {"Unknown exception"}},
        {std::string(ZelTest::kFormat) + "<A/>", {"CZelXMLGet::CZelXMLGet - NULL ptr"}},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_FALSE(document.read(item.text)) << item.text;
        EXPECT_EQ(document.takeMessages(), item.messages) << item.text;
        EXPECT_EQ(document.feedback.lastDocument, document.get());
    }
}

TEST(Load, ANullStreamAndABrokenOneFail)
{
    CClientDocument document;
    EXPECT_FALSE(document->read(nullptr, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown exception"));
    CMemoryReadStream stream(zelFile(std::string(100'000, ' ')));
    stream.failsAt = 50'000;
    EXPECT_FALSE(document->read(&stream, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("stream broke"));

    CMemoryReadStream odd("");
    odd.failsAt = 0;
    odd.failure = CMemoryReadStream::throwInt;
    EXPECT_FALSE(document->read(&odd, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown reading error"));
}

TEST(Load, StartsWhereTheStreamIs)
{
    for (const std::size_t step : {std::size_t{1}, std::size_t{7}, std::string::npos}) {
        CMemoryReadStream stream("junk" + zelFile(points({1, 2}) + "<Save.Url>u</Save.Url>"));
        stream.position = 4;
        stream.step = step;
        CClientDocument document;
        EXPECT_TRUE(document->read(&stream, nullptr));
        EXPECT_STREQ(document->getURL(), "u");
        EXPECT_THAT(xOf(document->getPoints()), ElementsAre(1, 2));
    }
}

TEST(Load, KeepsTheVersionsOfTheFileAlsoOfANewerOne)
{
    const struct {
        const char* format;
        CZelVersion library;
        int major, minor;
    } cases[] = {
        {"library=\"9.0.0\" file=\"9.0\" min_version=\"9.0.0\" safe_version=\"9.0.0\"",
         {9, 0, 0},
         9,
         0},
        {"library=\"2.01\" file=\"4.25\"", {2, 0, 1}, 4, 2},
        {"library=\"6.0.5\" file=\"6.5\" min_version=\"6.0.0\" safe_version=\"6.0.4\"",
         {6, 0, 5},
         6,
         5},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_TRUE(document.read(zelFile("", std::string("<?Zel ") + item.format + "?>")));
        std::int32_t major = 0, minor = 0;
        document->getFileVersion(&major, &minor);
        EXPECT_EQ(*document->getLibraryVersion(), item.library) << item.format;
        EXPECT_EQ(major, item.major) << item.format;
        EXPECT_EQ(minor, item.minor) << item.format;
        EXPECT_THAT(document.takeMessages(), IsEmpty());
    }
}

TEST(Load, TakesTheApplicationApart)
{
    const struct {
        const char *content, *name, *version;
    } cases[] = {
        {"name=\"Vendralis\" version=\"6.0\"", "Vendralis", "6.0"},
        {"name=\"Vendralis\"", "old", "1"},
        {"name=\"V\" version=\"6.0", "V", "1"}, // without a closing quote the version stays
        {"name=\"V\" version=\"\" more", "V", ""},
        // The opening and every letter of it in front of the name goes.
        {"name=\"mean Tool\" version=\"2\"", " Tool", "2"},
        {"name=\"Tool of mine\" version=\"2\"", "Tool of mine", "2"},
        {"eman==\"\"T\" version=\"3\"", "T", "3"},
        {"name=\"\" version=\"\"", "old", "1"},
        {"name=\"name\" version=\"3\"", "old", "1"}, // nothing is left of the name and its quote
        {"T\" version=\"3\"", "T", "3"},
        {"version=\"3\" name=\"T\"", "old", "1"},
        {"", "old", "1"},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        document->setApplication("old", "1");
        EXPECT_TRUE(document.read(
            zelFile("", std::string(ZelTest::kFormat) + "<?Application " + item.content + "?>")));
        EXPECT_STREQ(document->getApplicationName(), item.name) << item.content;
        EXPECT_STREQ(document->getApplicationVersion(), item.version) << item.content;
    }
    CClientDocument document;
    document->setApplication("old", "1");
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_STREQ(document->getApplicationName(), "old");
}

TEST(Load, TakesIdentifierAndOriginOfTheFile)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(
        zelFile("<File.Info UUID=\"" + kIdA + "\"><Origin X=\"1\" Y=\"2\" Z=\"3\"/></File.Info>")));
    EXPECT_EQ(idOf(document->getFileInfo()), kIdA);
    EXPECT_EQ(document->getFileInfo()->getOrigin()[2], 3.0);
    // What the file lacks stays.
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_TRUE(document.read(zelFile("<File.Info><Origin X=\"4\"/></File.Info>")));
    EXPECT_EQ(idOf(document->getFileInfo()), kIdA);
    EXPECT_EQ(document->getFileInfo()->getOrigin()[0], 4.0);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    // The identifier is read in front of the origin.
    EXPECT_FALSE(document.read(zelFile("<File.Info UUID=\"" + kIdB + "\"/>")));
    EXPECT_THAT(document.takeMessages(), ElementsAre("CZelXMLGet::CZelXMLGet - NULL ptr"));
    EXPECT_EQ(idOf(document->getFileInfo()), kIdB);
    EXPECT_EQ(document->getFileInfo()->getOrigin()[0], 4.0);
}

TEST(Load, TakesTheNameOfTheScene)
{
    const auto scene = [](const std::string& more) {
        return zelFile("<Object.Definition Placement=\"Vertical\" LightGroupID=\"" + kNoId + "\">" +
                       more +
                       "<Anchor X=\"0\" Y=\"0\" Z=\"0\"/><Up X=\"0\" Y=\"0\" Z=\"1\"/>"
                       "<Object.Data/></Object.Definition>");
    };
    const std::string kind = "<Class en=\"ModelObject\"/>";
    CClientDocument document;
    IZelString* name = document->getObjectDefinition()->getName();
    EXPECT_TRUE(document.read(scene(kind + "<Name en=\"House\" de=\"Haus\"/>")));
    EXPECT_EQ(name->getNbTexts(), 2U);
    EXPECT_STREQ(name->getText(0x6465), "Haus");
    EXPECT_TRUE(document.read(scene(kind)));
    EXPECT_EQ(name->getNbTexts(), 2U);
    // A definition without a class isn't read.
    EXPECT_TRUE(document.read(scene("<Name fr=\"M\"/>")));
    EXPECT_EQ(name->getNbTexts(), 2U);
    EXPECT_TRUE(document.read(zelFile("<Object.Definition/>")));
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_EQ(name->getNbTexts(), 2U);
    EXPECT_TRUE(document.read(scene(kind + "<Name fr=\"M\"/>")));
    EXPECT_EQ(name->getNbTexts(), 1U);
    EXPECT_TRUE(document.read(scene(kind + "<Name/>")));
    EXPECT_EQ(name->getNbTexts(), 0U);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Load, TheOldTreeStaysUntilTheNewOneIsWhole)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<Save.Url>old</Save.Url><Keep/>")));
    OrvaneXML::XIXMLElement* data = document->getApplicationData("Mine");
    EXPECT_FALSE(document.read(zelFile("<Save.Url>new</Save.Url></Wrong>")));
    EXPECT_EQ(document.takeMessages().size(), 1U);
    EXPECT_STREQ(document->getURL(), "old");
    EXPECT_EQ(document->getApplicationData("Mine"), data);
    EXPECT_THAT(document.save(), HasSubstr("<Keep/>"));
    // A whole tree that fails later is in force.
    EXPECT_FALSE(document.read(std::string(ZelTest::kFormat) +
                               "<Zel.File><Save.Url>new</Save.Url></Zel.File>"));
    EXPECT_STREQ(document->getURL(), "new");
    EXPECT_TRUE(document.write()); // and a save gives it what it lacked
    EXPECT_TRUE(document.read(document.written));
}

// Preview

TEST(Load, DecodesThePreviewOfOldFilesAlone)
{
    const std::string preview = section("Preview.Image", kRed);
    const struct {
        const char* format;
        const char* color;
    } cases[] = {
        {"<?Zel library=\"2.01\" file=\"5.0\"?>", "FF0000"},
        {"<?Zel library=\"4.9.9\" file=\"4.0\" min_version=\"4.0.0\" safe_version=\"4.0.0\"?>",
         "FF0000"},
        {"<?Zel library=\"5.0.0\" file=\"4.0\" min_version=\"4.0.0\" safe_version=\"4.0.0\"?>",
         "none"},
        {ZelTest::kFormat, "none"},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_TRUE(document.read(zelFile(preview, item.format)));
        EXPECT_EQ(colorOf(document->getPreviewImage()), item.color) << item.format;
        EXPECT_THAT(document.takeMessages(), IsEmpty());
        const std::string bytes = std::string(item.color) == "none" ? "" : kRed;
        EXPECT_THAT(document.save(), HasSubstr(section("Preview.Image", bytes))) << item.format;
    }
}

TEST(Load, APreviewThatTheClientSetStaysOverTheLoadOfANewFile)
{
    CClientDocument document;
    const std::uint8_t red[] = {0xFF, 0, 0, 0xFF};
    document->getPreviewImage()->setImage(1, 1, red);
    EXPECT_TRUE(document.read(zelFile(section("Preview.Image", kBlue))));
    EXPECT_THAT(document.save(), HasSubstr(section("Preview.Image", kRed)));
}

// Images

TEST(Load, ImagesReplaceThoseThatWereThere)
{
    CClientDocument document;
    document->getImages()->newZelObject(-1);
    EXPECT_TRUE(
        document.read(zelFile("<Images>" + image(kIdA, kRed) + image("", kBlue) + "</Images>")));
    EXPECT_THAT(colorsOf(document), ElementsAre("FF0000", "0000FF"));
    IZelImage* first = document->getImages()->getZelObject(0);
    EXPECT_EQ(idOf(first), kIdA);
    EXPECT_EQ(*first->getId(), CZelUUID(kIdA.c_str()));
    EXPECT_FALSE(document->getImages()->getZelObject(1)->getId()->isNull());
    // A file without pictures leaves them.
    EXPECT_TRUE(document.read(zelFile("<Images/>")));
    EXPECT_THAT(colorsOf(document), ElementsAre("FF0000", "0000FF"));
    EXPECT_TRUE(document.read(zelFile("<Images>" + image(kIdB, kBlue) + "</Images>")));
    EXPECT_THAT(colorsOf(document), ElementsAre("0000FF"));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Load, AFailedImageStaysWithItsIdentifier)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<Images>" + image(kIdA, "00000001") + image(kIdB, kBlue) +
                                      image("bad", kRed) + "</Images>")));
    const CMessages messages = document.takeMessages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_THAT(messages[0], HasSubstr("\" while parsing 'Image' data block"));
    EXPECT_EQ(messages[1], "Error \"CZelUUID::Hex2Int: Invalid hex value\" while parsing 'Image' "
                           "data block");
    EXPECT_THAT(colorsOf(document), ElementsAre("none", "0000FF", "none"));
    EXPECT_EQ(idOf(document->getImages()->getZelObject(0)), kIdA);
    EXPECT_EQ(idOf(document->getImages()->getZelObject(1)), kIdB);
    EXPECT_FALSE(document->getImages()->getZelObject(2)->getId()->isNull());
}

TEST(ReadCData, RefillsPicturesAndMeshesAndNothingElse)
{
    CClientDocument document;
    EXPECT_TRUE(
        document.read(zelFile("<Save.Url>u</Save.Url><Images>" + image(kIdA, kRed) + "</Images>" +
                              components(wrapper(kIdA, 1, points({1, 2}) + polygons(4))))));
    IZelImage* first = document->getImages()->getZelObject(0);
    document.readCData("<?Zel library=\"2.01\" file=\"3.0\"?><A><Save.Url>v</Save.Url>" +
                       image(kIdB, kBlue) + image(kIdA, kBlue) + image("", kRed) +
                       components(wrapper(kIdA, 7, points({5})) + wrapper(kIdB, 3, points({6}))) +
                       "</A>");
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    EXPECT_EQ(document->getImages()->getZelObject(0), first);
    EXPECT_THAT(colorsOf(document), ElementsAre("0000FF", "0000FF", "FF0000"));
    EXPECT_EQ(idOf(document->getImages()->getZelObject(1)), kIdB);
    EXPECT_STREQ(document->getURL(), "u");
    EXPECT_EQ(*document->getLibraryVersion(), (CZelVersion{6, 0, 6}));
    // The level of a definition that was there isn't touched; a mesh that the stream lacks stays.
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 1: 5", "B 3: 6"));
    EXPECT_EQ(document->getDefinitions()->getZelObject(0)->getPolygons()->getNbObjects(), 1);
}

TEST(ReadCData, TellsItsFailuresAsALoadDoes)
{
    CClientDocument document;
    document.readCData("<A>" + section("B", "x") + points({1}) + "</Wrong>");
    const CMessages messages = document.takeMessages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0], "Error \"CData block unknown\" while parsing 'B' data block");
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(1));
    document->readCData(nullptr, nullptr);
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown exception"));
    document.feedback.onProgress = [] { return false; };
    document.readCData("<A>" + points({2}) + image(kIdA, kRed) + "</A>");
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Error \"Operation cancelled\" while parsing 'Points' data block"));
    EXPECT_THAT(colorsOf(document), IsEmpty());
}

// Meshes

TEST(Load, AGeometryBlockReplacesItsMesh)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile(points({1, 2, 3}) + polygons(4))));
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(1, 2, 3));
    EXPECT_TRUE(document.read(zelFile(points({7}))));
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(7));
    ASSERT_EQ(document->getPolygons()->getNbObjects(), 1); // the file holds none
    EXPECT_EQ(document->getPolygons()->getZelObject(0)->getMaterial(), 4);
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(7));
    EXPECT_TRUE(document.read(zelFile(points({}))));
    EXPECT_THAT(xOf(document->getPoints()), IsEmpty());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Load, DefinitionsAreMadeByTheirBlocks)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile(
        components(wrapper(kIdA, 1, points({1}) + polygons(2)) + wrapper(kIdB, 0, polygons(3))))));
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 1: 1", "B 0:"));
    IZelZelObjectDefinition* first = document->getDefinitions()->getZelObject(0);
    // A second load finds them again; those that it doesn't name stay.
    EXPECT_TRUE(document.read(zelFile(components(wrapper(kIdB, 5, points({8, 9}))))));
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 1: 1", "B 5: 8 9"));
    EXPECT_EQ(document->getDefinitions()->getZelObject(0), first);
    EXPECT_EQ(document->getDefinitions()->getZelObject(1)->getPolygons()->getNbObjects(), 1);
    EXPECT_TRUE(document.read(zelFile(components(""))));
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 1: 1", "B 5: 8 9"));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Load, OfDefinitionsWithOneIdentifierTheLastTakesTheBlockAndTheFirstTheLevel)
{
    CClientDocument document;
    const CZelUUID id(kIdA.c_str());
    for (int i = 0; i < 2; ++i)
        document->getDefinitions()->newZelObject(-1)->getBasicData()->setId(&id);
    EXPECT_TRUE(document.read(zelFile(components(wrapper(kIdA, 4, points({1}))))));
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 4:", "A 0: 1"));
}

TEST(Load, ADefinitionIsFoundByTheIdentifierThatItHasByThen)
{
    CClientDocument document;
    const std::string renamed =
        "<Object.Definition UUID=\"" + kIdB + "\" LightGroupID=\"" + kNoId +
        "\" Placement=\"Vertical\"><Class en=\"ModelObject\"/><Anchor/><Up/>"
        "<Object.Data/></Object.Definition>";
    EXPECT_TRUE(document.read(zelFile(
        components(wrapper(kIdA, 1, points({1}) + renamed) + wrapper(kIdB, 4, points({2}))))));
    EXPECT_THAT(definitionsOf(document), ElementsAre("B 4: 1", "B 4: 2"));
    EXPECT_FALSE(
        document.read(zelFile(components(wrapper(kIdB, 1, renamed) + wrapper(kIdA, 4, "")))));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown exception"));
}

TEST(Load, AWrapperThatNoDefinitionBelongsToEndsTheLoad)
{
    const struct {
        std::string wrapper;
        CMessages messages;
    } cases[] = {
        {wrapper(kIdA, 0, ""), {"Unknown exception"}},
        {"<InternalComponentDefinition>" + points({1}) + "</InternalComponentDefinition>",
         {"Error \"CZELCDATAReader::ReadCData - No UUID attributes\" while parsing 'Points' data "
          "block",
          "CZelXMLGet::GetUUID - NULL ptr for tag UUID"}},
        {wrapper(kNoId, 0, points({1})),
         {"Error \"CZELCDATAReader::ReadCData - NULL UUID\" while parsing 'Points' data block",
          "Unknown exception"}},
        {"<InternalComponentDefinition UUID=\"" + kIdA + "\">" + points({1}) +
             "</InternalComponentDefinition>",
         {"Error \"CZELCDATAReader::ReadCData - No Geometry.Level element\" while parsing 'Points' "
          "data block",
          "Unknown exception"}},
        {"<InternalComponentDefinition UUID=\"" + kIdA + "\"><Geometry.Level/>" + points({1}) +
             "</InternalComponentDefinition>",
         {"Error \"CZELCDATAReader::ReadCData - No Geometry.Level data\" while parsing 'Points' "
          "data block",
          "Unknown exception"}},
        {"<InternalComponentDefinition UUID=\"12\">" + points({1}) +
             "</InternalComponentDefinition>",
         {"Error \"CZelUUID::Hex2Int: Invalid hex value\" while parsing 'Points' data block",
          "CZelUUID::Hex2Int: Invalid hex value"}},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_FALSE(document.read(zelFile(components(item.wrapper) +
                                           "<Object.Definition><Name en=\"Late\"/>"
                                           "</Object.Definition>")));
        EXPECT_EQ(document.takeMessages(), item.messages) << item.wrapper;
        EXPECT_THAT(definitionsOf(document), IsEmpty());
        // Definitions are read in front of the scene.
        EXPECT_EQ(document->getObjectDefinition()->getName()->getNbTexts(), 0U);
        // The document can still be saved, and what was saved be read.
        EXPECT_TRUE(document.write());
        EXPECT_TRUE(document.read(document.written)) << document.written;
        EXPECT_THAT(document.takeMessages(), IsEmpty());
    }
}

TEST(Load, TheLevelIsRequiredForADefinitionThatWasThere)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile(components(wrapper(kIdA, 2, points({1}))))));
    EXPECT_FALSE(
        document.read(zelFile(components("<InternalComponentDefinition UUID=\"" + kIdA + "\"/>"))));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("CZelXMLGet::GetElement - NULL ptr for tag Geometry.Level"));
}

TEST(Load, ABlockThatFailsIsToldAndSkipped)
{
    const struct {
        std::string block, message;
    } cases[] = {
        {section("Points", "2 1 2 3 "), "Error \"This is not a number\" while parsing 'Points'"},
        {section("Points", "abc"), "Error \"This is not a number\" while parsing 'Points'"},
        {section("Points", "7. "), "Error \"This is not a integer\" while parsing 'Points'"},
        {section("Points", ""), "Error \"This is not a number\" while parsing 'Points'"},
        {section("Polygons", "1 p\t1 3 0 1 "),
         "Error \"This is not a number\" while parsing 'Polygons'"},
        {section("Unknown", "1 2"), "Error \"CData block unknown\" while parsing 'Unknown'"},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        EXPECT_TRUE(document.read(
            zelFile(item.block + "<Save.Url>behind</Save.Url>" + section("Image", kRed))));
        EXPECT_THAT(document.takeMessages(), ElementsAre(item.message + " data block"));
        EXPECT_STREQ(document->getURL(), "behind");
        EXPECT_THAT(colorsOf(document), ElementsAre("FF0000"));
    }
}

TEST(Load, RecordsAheadOfAFailureStayInTheMesh)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile(section("Points", "3 1 0 0 2 0 0 x"))));
    EXPECT_EQ(document.takeMessages().size(), 1U);
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(1, 2));
}

TEST(Load, SectionsAreDecodedByTheirNameAloneAlsoInClientData)
{
    CClientDocument document;
    EXPECT_TRUE(document.read(zelFile("<Application.Data><Mine>" + points({4}) + image(kIdA, kRed) +
                                      "</Mine></Application.Data>")));
    EXPECT_THAT(xOf(document->getPoints()), ElementsAre(4));
    EXPECT_THAT(colorsOf(document), ElementsAre("FF0000"));
}

// Client storage

TEST(LoadStorage, EveryBlockGoesToTheClientsReader)
{
    CClientDocument document;
    CClientStorage storage;
    EXPECT_TRUE(document.read(zelFile(components(wrapper(kIdA, 0, points({5}) + polygons(6)) +
                                                 wrapper(kIdB, 2, points({}))) +
                                      points({7, 8}) + polygons(9)),
                              &storage));
    EXPECT_THAT(storage.calls,
                ElementsAre("reader " + kIdA + " zero", "points 1", "point 0 5.000000",
                            "reader " + kIdA + " zero", "polygons 1", "polygon 0 6",
                            "reader " + kIdB, "points 0", "reader " + kNoId + " zero", "points 2",
                            "point 0 7.000000", "point 1 8.000000", "reader " + kNoId + " zero",
                            "polygons 1", "polygon 0 9"));
    EXPECT_EQ(storage.nbAlive, 0);
    // The definitions are in the document, their meshes aren't.
    EXPECT_THAT(definitionsOf(document), ElementsAre("A 0:", "B 2:"));
    EXPECT_THAT(xOf(document->getPoints()), IsEmpty());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(LoadStorage, FaultsOfTheClientFailTheBlockAlone)
{
    using EFault = CClientStorage::EFault;
    const struct {
        EFault fault;
        std::string message;
    } cases[] = {
        {EFault::NullObject, "Error \"Unknown exception\" while parsing '"},
        {EFault::CreateThrows, "Error \"no storage\" while parsing '"},
        {EFault::Throws, "Error \"storage broke\" while parsing '"},
        {EFault::ThrowsInt, "Unknownm exception while parsing '"},
        {EFault::False, "Error \"External storage cancel IO\" while parsing '"},
    };
    for (const auto& item : cases) {
        CClientDocument document;
        CClientStorage storage;
        storage.fault = item.fault;
        EXPECT_TRUE(document.read(zelFile(points({7, 8}) + polygons(9)), &storage));
        EXPECT_THAT(document.takeMessages(), ElementsAre(item.message + "Points' data block",
                                                         item.message + "Polygons' data block"));
        EXPECT_EQ(storage.nbAlive, 0);
    }
}

TEST(LoadStorage, AnAbsurdCountWarnsAndReachesTheClientAsItIs)
{
    CClientDocument document;
    CClientStorage storage;
    EXPECT_TRUE(document.read(
        zelFile(section("Points", "-3 ") + section("Polygons", "10000000 p\t1 0 ")), &storage));
    EXPECT_THAT(storage.calls,
                ElementsAre("reader " + kNoId + " zero", "points -3", "reader " + kNoId + " zero",
                            "polygons 10000000", "polygon 0 1"));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Numbers of points seems wrong", "Numbers of polygons seems wrong",
                            "Polygon type unknown",
                            "Error \"This is not a number\" while parsing 'Polygons' data block"));
}

// Cancel

std::string fileWithBlocks()
{
    return zelFile("<Save.Url>new</Save.Url>" + section("Unknown", "x") + points({1}) +
                   polygons(2) + components(wrapper(kIdA, 0, points({3}) + polygons(4))) +
                   image(kIdB, kRed));
}

TEST(LoadCancel, EndsTheLoadAtEachProgressCall)
{
    CClientDocument whole;
    EXPECT_TRUE(whole.read(fileWithBlocks()));
    const auto reports = whole.feedback.reports;
    ASSERT_EQ(reports.size(), 4U);
    EXPECT_THAT(reports, ElementsAre(std::pair(0, 2000), std::pair(1000, 2000), std::pair(0, 2000),
                                     std::pair(1000, 2000)));
    for (std::size_t i = 0; i < reports.size(); ++i) {
        CClientDocument document;
        document->setURL("old");
        std::size_t nbCalls = 0;
        document.feedback.onProgress = [&] { return nbCalls++ < i; };
        EXPECT_FALSE(document.read(fileWithBlocks()));
        EXPECT_EQ(nbCalls, i + 1);
        EXPECT_THAT(document.takeMessages(),
                    ElementsAre("Error \"CData block unknown\" while parsing 'Unknown' data block",
                                std::string("Error \"Operation cancelled\" while parsing '") +
                                    (i % 2 == 0 ? "Points" : "Polygons") + "' data block"));
        EXPECT_STREQ(document->getURL(), "old");
        EXPECT_EQ(document->getImages()->getNbObjects(), 0);
        // The next load starts afresh.
        document.feedback.onProgress = nullptr;
        EXPECT_TRUE(document.read(fileWithBlocks()));
        EXPECT_STREQ(document->getURL(), "new");
        EXPECT_THAT(xOf(document->getPoints()), ElementsAre(1));
        EXPECT_THAT(definitionsOf(document), ElementsAre("A 0: 3"));
    }
}

TEST(LoadCancel, WhatProgressThrowsFailsTheBlockAlone)
{
    CClientDocument document;
    document.feedback.onProgress = []() -> bool { throw std::runtime_error("no time"); };
    EXPECT_TRUE(document.read(zelFile(points({1}) + image(kIdA, kRed))));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Error \"no time\" while parsing 'Points' data block"));
    EXPECT_THAT(colorsOf(document), ElementsAre("FF0000"));
}

TEST(Load, AMessageThatThrowsChangesNothing)
{
    class CFeedback : public ZelTest::CTestFeedback {
    public:
        void message(IZelMgr*, const char*) override { throw std::runtime_error("busy"); }
    } feedback;
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, eVersionZel, &feedback);
    CMemoryReadStream stream(zelFile(section("Unknown", "x") + points({1})));
    EXPECT_TRUE(document->read(&stream, nullptr));
    EXPECT_EQ(document->getPoints()->getNbObjects(), 1);
    CMemoryReadStream bad("");
    EXPECT_FALSE(document->read(&bad, nullptr));
    document->Release();
}

} // namespace
