#include "tests/support/CClientDocument.h"
#include "tests/support/zelFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

// The document itself: the factory, its facets, its texts and what it tells.

namespace {

using namespace OvZel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;
using ZelTest::CMemoryWriteStream;
using ZelTest::CTestFeedback;
using ZelTest::zelFile;

constexpr std::uint32_t kNoComment = 0xFFFFFFFF;

// Factory

TEST(Factory, TakesTheGenerations30To50)
{
    const struct {
        int version;
        std::vector<std::string> messages;
    } cases[] = {
        {5, {"Client is obsolete for this Zel Library!"}},
        {29, {"Client is obsolete for this Zel Library!"}},
        {30, {}},
        {50, {}},
        {51, {"Client is newer than Zel Library!"}},
    };
    for (const auto& item : cases) {
        CTestFeedback feedback;
        CClientDocument marker;
        feedback.lastDocument = marker.get();
        IZelMgr* document = nullptr;
        IZelMgr::newZelMgr(&document, static_cast<EVersionZEL>(item.version), &feedback);
        EXPECT_EQ(document != nullptr, item.messages.empty()) << item.version;
        EXPECT_EQ(feedback.take(), item.messages) << item.version;
        EXPECT_EQ(feedback.lastDocument == nullptr, document == nullptr) << item.version;
        if (document != nullptr)
            document->Release();
    }
}

TEST(Factory, ReleasesWhatStandsInOutAlsoWhenItFails)
{
    for (const int version : {29, 50}) {
        CClientDocument old;
        IZelMgrRef* ref = old->getObjectLink()->getMgrRef();
        ref->AddRef();
        IZelMgr* document = old.get();
        document->AddRef();
        old.release();
        EXPECT_EQ(ref->getMgr(), document);
        IZelMgr::newZelMgr(&document, static_cast<EVersionZEL>(version), nullptr);
        EXPECT_EQ(ref->getMgr(), nullptr);
        EXPECT_EQ(document != nullptr, version == 50);
        ref->Release();
        if (document != nullptr)
            document->Release();
    }
    IZelMgr::newZelMgr(nullptr, eVersionZel, nullptr);
}

TEST(Factory, SwallowsWhatTheFeedbackThrows)
{
    class CFeedback : public CTestFeedback {
    public:
        void message(IZelMgr*, const char*) override { throw 1; }
    } feedback;
    IZelMgr* document = nullptr;
    EXPECT_NO_THROW(IZelMgr::newZelMgr(&document, static_cast<EVersionZEL>(51), &feedback));
    EXPECT_EQ(document, nullptr);
    IZelMgr::newZelMgr(&document, eVersionZel, &feedback);
    ASSERT_NE(document, nullptr);
    EXPECT_NO_THROW(document->setLanguage("fra"));
    EXPECT_STREQ(document->getLanguage(), "en");
    document->Release();
}

TEST(Factory, TellsItsGeneration)
{
    EXPECT_EQ(static_cast<int>(IZelMgr::getZELVersion()), 50);
    EXPECT_EQ(static_cast<int>(IZelMgr::getExtendedZelVersion()), 50);
}

TEST(Document, TheFurtherFacetIsForGenerations5To50)
{
    const struct {
        int version;
        std::vector<std::string> messages;
    } cases[] = {
        {4, {"Client is obsolete for this Zel Library!"}}, {5, {}}, {30, {}}, {50, {}},
        {51, {"Client is newer than Zel Library!"}},
    };
    CClientDocument document;
    for (const auto& item : cases) {
        EXPECT_EQ(document->getMgrEx(static_cast<EVersionZEL>(item.version)) != nullptr,
                  item.messages.empty());
        EXPECT_EQ(document.takeMessages(), item.messages) << item.version;
    }
}

// A new document

TEST(Document, ANewOneIsEmpty)
{
    CClientDocument document;
    std::int32_t major = 0, minor = 0;
    EXPECT_TRUE(document->getFileVersion(&major, &minor));
    EXPECT_EQ(major, 5);
    EXPECT_EQ(minor, 1);
    EXPECT_TRUE(document->getFileVersion(nullptr, nullptr));
    EXPECT_EQ(*document->getLibraryVersion(), CZelVersion());
    EXPECT_EQ(*document.more().getSaveVersion(), (CZelVersion{6, 0, 0}));
    EXPECT_STREQ(document->getApplicationName(), "");
    EXPECT_STREQ(document->getApplicationVersion(), "");
    EXPECT_STREQ(document->getURL(), "");
    EXPECT_EQ(document->getComment(0), nullptr);
    EXPECT_STREQ(document->getLanguage(), "en");
    EXPECT_FALSE(document->getFileInfo()->getBasicData()->getId()->isNull());
    EXPECT_EQ(document->getFileInfo(), document->getFileInfo2());
    const double* origin = document->getFileInfo()->getOrigin();
    EXPECT_THAT(std::vector<double>(origin, origin + 3), ElementsAre(0.0, 0.0, 0.0));
    std::uint32_t width = 1, height = 1;
    std::uint8_t* pixels = nullptr;
    document->getPreviewImage()->getImage(&width, &height, &pixels);
    EXPECT_EQ(width + height, 0U);
    EXPECT_EQ(pixels, nullptr);
    EXPECT_EQ(document->getPoints()->getNbObjects(), 0);
    EXPECT_EQ(document->getPolygons()->getNbObjects(), 0);
    EXPECT_EQ(document->getImages()->getNbObjects(), 0);
    EXPECT_EQ(document->getDefinitions()->getNbObjects(), 0);
    EXPECT_EQ(document->getObjectDefinition()->getName()->getNbTexts(), 0U);
    EXPECT_EQ(document->getObjectDefinition()->getBasicData()->getUIValue(), 0xFFFFFFFF);
    EXPECT_EQ(document->getLayers(), document->getLayers2());
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

template <class T>
void expectList(CClientDocument& document, TZelObjectMgr<T>* list, std::int32_t nb,
                const char* name)
{
    ASSERT_NE(list, nullptr) << name;
    EXPECT_EQ(list->getNbObjects(), nb) << name;
    EXPECT_EQ(list->getZelObject(nb), nullptr) << name;
    list->removeObject(nb);
    EXPECT_EQ(list->newZelObject(nb + 1), nullptr) << name;
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("getZelObject: Bad index value", "removeObject: Bad index value",
                            "newZelObject: Bad index value"))
        << name;
    T* made = list->newZelObject(-1);
    ASSERT_NE(made, nullptr) << name;
    EXPECT_EQ(list->getZelObject(nb), made) << name;
    EXPECT_EQ(list->getObjectLink()->getMgrRef()->getMgr(), document.get()) << name;
    list->removeAllObjects();
    EXPECT_EQ(list->getNbObjects(), 0) << name;
    EXPECT_THAT(document.takeMessages(), IsEmpty()) << name;
}

TEST(Document, ANewOneHasOneHeliodonAndNothingElse)
{
    CClientDocument document;
    expectList(document, document->getHeliodons(), 1, "heliodons");
    expectList(document, document->getCameras(), 0, "cameras");
    expectList(document, document->getProperties(), 0, "properties");
    expectList(document, document->getLights(), 0, "lights");
    expectList(document, document->getViewObjects(), 0, "view objects");
    expectList(document, document->getParallelViews(), 0, "parallel views");
    expectList(document, document->getLightsGroups(), 0, "lights groups");
    expectList(document, document->getObjectInstances(), 0, "object instances");
    expectList(document, document->getEnvironments(), 0, "environments");
    expectList(document, document->getGrounds(), 0, "grounds");
    expectList(document, document->getLayers(), 0, "layers");
    expectList(document, document->getExternalDefinitions(), 0, "external definitions");
    expectList(document, document->getImages(), 0, "images");
    expectList(document, document->getScenarios(), 0, "scenarios");
    expectList(document, document->get3DPaths(), 0, "3D paths");
    expectList(document, document->getPanoramas(), 0, "panoramas");
    expectList(document, document.more().getAnimations(), 0, "animations");
    expectList(document, document->getDefinitions(), 0, "definitions");
    expectList(document, document->getPolygons(), 0, "polygons");
    expectList(document, document.more().getBillboards(), 0, "billboards");
    expectList(document, document.more().getWorkingViews(), 0, "working views");
    EXPECT_TRUE(document->getLayerInfo()->getActiveLayer().isNull());
}

TEST(Document, MeshesOfItsOwnCanBeEdited)
{
    CClientDocument document;
    *document->getPoints()->newZelObject(-1) = {1, 2, 3};
    IZelPolygon* polygon = document->getPolygons()->newZelObject(-1);
    polygon->setMaterial(7);
    EXPECT_EQ(document->getPolygons()->getZelObject(0), polygon);
    EXPECT_EQ(document->getPoints()->getZelObject(1), nullptr);
    EXPECT_THAT(document.takeMessages(), ElementsAre("getZelObject: Bad index value"));
}

// Language and matrix

TEST(Document, TheLanguageHasTwoCharacters)
{
    CClientDocument document;
    for (const char* bad : {"fra", "f", "", static_cast<const char*>(nullptr)}) {
        document->setLanguage(bad);
        EXPECT_THAT(document.takeMessages(),
                    ElementsAre("IZelMgr::setLanguage - Invalid language"));
        EXPECT_STREQ(document->getLanguage(), "en");
    }
    document->setLanguage("fr");
    EXPECT_STREQ(document->getLanguage(), "fr");
    EXPECT_STREQ(document->getObjectLink()->getMgrRef()->getLanguage(), "fr");
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Document, TheSceneIsNamedInTheCurrentLanguage)
{
    CClientDocument document;
    IZelBasicData* data = document->getObjectDefinition()->getBasicData();
    IZelString* name = document->getObjectDefinition()->getName();
    data->setName("House");
    document->setLanguage("de");
    EXPECT_STREQ(data->getName(), "House"); // failing the language, the first text
    data->setName("Haus");
    EXPECT_STREQ(data->getName(), "Haus");
    EXPECT_STREQ(name->getText(0x656E), "House");
    EXPECT_STREQ(name->getText(0x6465), "Haus");
    data->setName(nullptr);
    EXPECT_THAT(document.takeMessages(), ElementsAre("CZelBasicData::setName - inName is NULL"));
    EXPECT_STREQ(data->getName(), "Haus");
}

struct CMatrix {
    double values[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

TEST(Document, TheMatrixMovesWhatIsRead)
{
    CMatrix moved;
    moved.values[12] = 10;
    moved.values[13] = 20;
    moved.values[14] = 30;
    CMatrix turned; // x to y, y to -x
    turned.values[0] = turned.values[5] = 0;
    turned.values[1] = 1;
    turned.values[4] = -1;
    CMatrix twos;
    std::fill_n(twos.values, 16, 2.0); // nothing in common with the identity: no transform
    CMatrix nearlyTwos = twos;
    nearlyTwos.values[1] = 0.0;
    const struct {
        CMatrix matrix;
        CZelPoint found;
    } cases[] = {
        {CMatrix(), {1, 2, 3}}, {moved, {11, 22, 33}},      {turned, {-2, 1, 3}},
        {twos, {1, 2, 3}},      {nearlyTwos, {14, 12, 14}},
    };
    const std::string file = zelFile("<File.Info><Origin X=\"1\" Y=\"2\" Z=\"3\"/></File.Info>"
                                     "<Points><![CDATA[1 1 2 3 ]]></Points>");
    for (const auto& item : cases) {
        CClientDocument document;
        document->setMatrix(item.matrix.values);
        EXPECT_TRUE(std::equal(item.matrix.values, item.matrix.values + 16, document->getMatrix()));
        EXPECT_TRUE(document.read(file));
        const double* origin = document->getFileInfo()->getOrigin();
        ASSERT_EQ(document->getPoints()->getNbObjects(), 1);
        const CZelPoint point = *document->getPoints()->getZelObject(0);
        EXPECT_THAT(std::vector<double>(origin, origin + 3),
                    ElementsAre(item.found.x, item.found.y, item.found.z));
        EXPECT_THAT((std::vector<double>{point.x, point.y, point.z}),
                    ElementsAre(item.found.x, item.found.y, item.found.z));
        // Saving moves nothing back.
        EXPECT_THAT(document.save(), HasSubstr("X=\"" + std::to_string(item.found.x) + "\" Y=\"" +
                                               std::to_string(item.found.y) + "\" Z=\"" +
                                               std::to_string(item.found.z) + "\""));
    }
}

TEST(Document, ACoordinateThatTheOriginLacksIsZeroBeforeTheTransform)
{
    CMatrix moved;
    moved.values[12] = 10;
    CClientDocument document;
    const double before[] = {7, 8, 9};
    document->getFileInfo()->setOrigin(before);
    document->setMatrix(moved.values);
    EXPECT_TRUE(document.read(zelFile("<File.Info><Origin Y=\"2\"/></File.Info>")));
    const double* origin = document->getFileInfo()->getOrigin();
    EXPECT_THAT(std::vector<double>(origin, origin + 3), ElementsAre(10.0, 2.0, 0.0));
}

// Comments, URL, application data

TEST(Comments, AreAddedReplacedAndRemoved)
{
    CClientDocument document;
    EXPECT_EQ(document->setComment(nullptr, 0), kNoComment);
    EXPECT_EQ(document->setComment("first", 7), 0U);
    EXPECT_STREQ(document->getComment(0), "first");
    EXPECT_EQ(document->getComment(1), nullptr);
    EXPECT_EQ(document->setComment("second", 1), 1U);
    EXPECT_EQ(document->setComment("third", 99), 2U);
    EXPECT_EQ(document->setComment("changed", 1), 1U);
    EXPECT_STREQ(document->getComment(1), "changed");
    EXPECT_EQ(document->setComment(nullptr, 0), 0U);
    EXPECT_STREQ(document->getComment(0), "changed");
    EXPECT_STREQ(document->getComment(1), "third");
    EXPECT_EQ(document->setComment(nullptr, 2), kNoComment);
    EXPECT_EQ(document->getComment(-1), nullptr);
    EXPECT_EQ(document->setComment(nullptr, -1), kNoComment);
    EXPECT_EQ(document->setComment("fourth", -1), 2U);
    EXPECT_THAT(document.save(), HasSubstr("?>\n<!--changed-->\n<!--third-->\n<!--fourth-->\n"
                                           "<Zel.File>"));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST(Comments, StandOutsideTheFileElementAndComeBack)
{
    CClientDocument document;
    EXPECT_TRUE(document.read("<!-- head -->" + zelFile("<!--inside-->") + "<!--tail-->"));
    EXPECT_STREQ(document->getComment(0), " head ");
    EXPECT_STREQ(document->getComment(1), "tail");
    EXPECT_EQ(document->getComment(2), nullptr);
    // A new one goes in front of the file element, behind one comment.
    EXPECT_EQ(document->setComment("new", 2), 1U);
    EXPECT_STREQ(document->getComment(1), "new");
    EXPECT_STREQ(document->getComment(2), "tail");
    EXPECT_THAT(document.save(), HasSubstr("\t<!--inside-->\n"));
}

TEST(Comments, OneThatCannotBeWrittenStopsTheSaveUntilItGoes)
{
    CClientDocument document;
    document->setComment("a-->b", 0);
    EXPECT_FALSE(document.write());
    EXPECT_EQ(document.written, "");
    EXPECT_EQ(document.takeMessages().size(), 1U);
    document->setComment("a--b-", 0);
    EXPECT_TRUE(document.write());
    EXPECT_THAT(document.written, HasSubstr("<!--a--b- -->"));
}

TEST(Url, IsKeptInTheFile)
{
    CClientDocument document;
    document->setURL("file:///a&b");
    EXPECT_STREQ(document->getURL(), "file:///a&b");
    document->setURL("file:///c");
    EXPECT_STREQ(document->getURL(), "file:///c");
    const std::string saved = document.save();
    EXPECT_THAT(saved, HasSubstr("<Save.Url>file:///c</Save.Url>"));
    CClientDocument other;
    EXPECT_TRUE(other.read(saved));
    EXPECT_STREQ(other->getURL(), "file:///c");
    other->setURL(nullptr);
    EXPECT_STREQ(other->getURL(), "");
    EXPECT_THAT(other.save(), HasSubstr("<Save.Url/>"));
    EXPECT_THAT(other.takeMessages(), IsEmpty());
}

TEST(ApplicationData, IsOneElementForEachTag)
{
    CClientDocument document;
    OrvaneXML::XIXMLElement* mine = document->getApplicationData("Mine");
    ASSERT_NE(mine, nullptr);
    EXPECT_STREQ(mine->GetKey(), "Mine");
    EXPECT_STREQ(mine->GetNode()->GetParent()->GetKey(), "Application.Data");
    EXPECT_EQ(document->getApplicationData("Mine"), mine);
    EXPECT_NE(document->getApplicationData("Yours"), mine);
    EXPECT_EQ(document->getApplicationData("Yours")->GetNode()->GetParent(),
              mine->GetNode()->GetParent());
    for (const char* bad : {"", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(document->getApplicationData(bad), nullptr);
        EXPECT_THAT(
            document.takeMessages(),
            ElementsAre("Exception in IZelMgr::getApplicationData : Invalid application tag"));
    }
}

TEST(Document, WithoutAFileElementTheTreeOperationsFail)
{
    CClientDocument document;
    EXPECT_FALSE(document.read(std::string(ZelTest::kFormat) + "<!--c--><Other/>"));
    EXPECT_THAT(document.takeMessages(), ElementsAre("CZelXMLGet::CZelXMLGet - NULL ptr"));
    EXPECT_STREQ(document->getURL(), "");
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Exception in IZelMgr::getURL : mFileNode is NULL"));
    document->setURL("a");
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Exception in IZelMgr::setURL : mFileNode is NULL"));
    EXPECT_EQ(document->getApplicationData("Mine"), nullptr);
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Exception in IZelMgr::getApplicationData : mFileNode is NULL"));
    EXPECT_EQ(document->setComment("b", 1), kNoComment);
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Exception in IZelMgr::setComment : mFileNode is NULL"));
    EXPECT_STREQ(document->getComment(0), "c");
    EXPECT_EQ(document->getComment(1), nullptr);
    EXPECT_FALSE(document.write());
    EXPECT_THAT(document.takeMessages(), ElementsAre("Error \"mFileNode is NULL\" while writting"));
    EXPECT_TRUE(document.read(zelFile("")));
    EXPECT_TRUE(document.write());
}

// Application

TEST(Application, NullTextsAreEmpty)
{
    CClientDocument document;
    document->setApplication("Name", "1.0");
    EXPECT_STREQ(document->getApplicationName(), "Name");
    EXPECT_STREQ(document->getApplicationVersion(), "1.0");
    EXPECT_THAT(document.save(), HasSubstr("<?Application name=\"Name\" version=\"1.0\"?>"));
    document->setApplication(nullptr, nullptr);
    EXPECT_STREQ(document->getApplicationName(), "");
    EXPECT_THAT(document.save(), HasSubstr("<?Application name=\"\" version=\"\"?>"));
}

TEST(Application, OneThatCannotBeWrittenStopsTheSave)
{
    CClientDocument document;
    document->setApplication("a?>b", "1");
    EXPECT_FALSE(document.write());
    EXPECT_EQ(document.written, "");
    document->setApplication("ab", "1");
    EXPECT_TRUE(document.write());
}

// Life

TEST(Document, KeptObjectsOutliveIt)
{
    CClientDocument document;
    IZelImage* image = document->getImages()->newZelObject(-1);
    image->AddRef();
    IZelZelObjectDefinition* scene = document->getObjectDefinition();
    scene->AddRef();
    TZelObjectMgr<IZelImage>* images = document->getImages();
    images->AddRef();
    EXPECT_EQ(image->getObjectLink()->getMgrRef()->getMgr(), document.get());
    document.release();

    const std::uint8_t pixels[4] = {1, 2, 3, 4};
    image->setImage(1, 1, pixels);
    std::uint32_t width = 0;
    image->getImage(&width, nullptr, nullptr);
    EXPECT_EQ(width, 1U);
    scene->getBasicData()->setName("kept");
    EXPECT_STREQ(scene->getBasicData()->getName(), "kept");
    ASSERT_NE(scene->getObjectLink()->getMgrRef(), nullptr);
    EXPECT_EQ(scene->getObjectLink()->getMgrRef()->getMgr(), nullptr);
    EXPECT_EQ(images->getZelObject(5), nullptr);
    EXPECT_THAT(document.takeMessages(), IsEmpty()); // nobody is left to be told

    images->Release();
    image->Release();
    scene->Release();
}

TEST(Document, DiesWithItsLastReference)
{
    testing::internal::CaptureStdout();
    {
        CClientDocument document;
        IZelMgrRef* ref = document->getObjectLink()->getMgrRef();
        ref->AddRef();
        void* second = nullptr;
        EXPECT_EQ(document->QueryInterface(IID_IUnknown, &second), kQueryOk);
        document.release();
        EXPECT_EQ(ref->getMgr(), second);
        static_cast<IZelMgr*>(second)->Release();
        EXPECT_EQ(ref->getMgr(), nullptr);
        ref->setLanguage("bad");
        ref->Release();
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(Document, WithoutFeedbackOnlyTheResultTells)
{
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, eVersionZel, nullptr);
    ASSERT_NE(document, nullptr);
    document->setLanguage("bad");
    CMemoryReadStream stream("no document");
    EXPECT_FALSE(document->read(&stream, nullptr));
    EXPECT_FALSE(document->write(nullptr, nullptr));
    CMemoryReadStream good(zelFile("<Points><![CDATA[1 1 2 3 ]]></Points>"));
    EXPECT_TRUE(document->read(&good, nullptr));
    CMemoryWriteStream output;
    EXPECT_TRUE(document->write(&output, nullptr));
    document->Release();
}

// Render parameters

TEST(RenderParameters, TravelWithTheDocument)
{
    CClientDocument document;
    CZelRenderParameters& given = *document.more().getRenderParameters();
    EXPECT_EQ(given.configName, "Unknown_Config");
    EXPECT_EQ(given.entries[11].maximum, 100.0);
    given.configName = "Mine";
    given.entries[0].value = 1.5;
    given.entries[11].flag = true;
    given.entries[11].text = "a<b";
    given.entries[5].color[1] = 200;
    const std::string saved = document.save();
    EXPECT_THAT(saved, HasSubstr("<Config.Name>Mine</Config.Name>\n\t\t<Double1>1.500000"));
    EXPECT_THAT(saved, HasSubstr("<BOOL12/>\n\t\t<STR12 en=\"a&lt;b\"/>"));

    CClientDocument other;
    EXPECT_TRUE(other.read(saved));
    const CZelRenderParameters& found = *other.more().getRenderParameters();
    EXPECT_EQ(found.configName, "Mine");
    EXPECT_EQ(found.entries[0].value, 1.5);
    EXPECT_TRUE(found.entries[11].flag);
    EXPECT_EQ(found.entries[11].text, "a<b");
    EXPECT_EQ(found.entries[5].color[1], 200);

    EXPECT_TRUE(other.read(zelFile(""))); // without the section nothing changes
    EXPECT_EQ(found.configName, "Mine");
    EXPECT_TRUE(found.entries[11].flag);
}

} // namespace
