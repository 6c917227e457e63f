#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/viewParts.h"
#include "views/CZelPanoramaV2.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');
const std::string kMadeId = "11112222333344445555666677778888";
const std::string kFileId = "000102030405060708090A0B0C0D0E0F";
const std::string kOtherId = "101112131415161718191A1B1C1D1E1F";

/// Makes objects with an identifier that is known.
template <class Object>
TZelComPtr<Object> made(CTestDocument& document)
{
    TZelComPtr object(new Object(document.ref()));
    const CZelUUID id(kMadeId.c_str());
    object->setId(&id);
    return object;
}

CRow idElement(const std::string& name, const std::string& full)
{
    const auto textOf = [&](const std::string& id) {
        return "<" + name + " UUID=\"" + id + "\"/>";
    };
    return raw(name, textOf(full), textOf(kNullId));
}

template <class Object>
std::string asWritten(const char* tag)
{
    CTestDocument document;
    return partText(document, tag, *made<Object>(document));
}

std::vector<CRow> panoramaRows()
{
    const std::string node = asWritten<CZelPanoNodeV2>("PanoramaV2.Node");
    const std::string link = asWritten<CZelPanoLinkV2>("PanoV2.Link");
    const std::string view = "<Parallel.View UUID=\"" + kOtherId + "\"/>";
    return {
        attribute("UUID", kFileId, kMadeId),
        required(raw("Name", "<Name en=\"Tour\"/>", "<Name en=\"PanoramaV2\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        optional(xyz("Direction", {1, 0, 0}, {0, 0, 1})),
        real("Focal", 70.5, 50.0),
        integer("UI.Value", -1, 0),
        integer("View.Flags", -2, 0),
        optional(xyz("Current.Direction", {0, 1, 0}, {0, 0, 1})),
        absentGives(real("Current.Focal", 70.5, 50.0), "<Current.Focal>70.500000</Current.Focal>"),
        attribute("Current.Node.Id", kOtherId, kNullId),
        idElement("Start.NodeID", kOtherId),
        optionsRow(),
        viewInfoRow(),
        raw("PanoramaV2.Nodes", elementText("PanoramaV2.Nodes", node + node),
            "<PanoramaV2.Nodes/>"),
        raw("PanoV2.Links", elementText("PanoV2.Links", link + link), "<PanoV2.Links/>"),
        optional(raw("Parallel.Views", elementText("Parallel.Views", view + view), "")),
    };
}

/// A panorama element with what is required.
std::string panoramaFile(const std::string& early, const std::string& late)
{
    return "<E><PanoramaV2 UUID=\"" + kFileId + "\"><Name en=\"N\"/>" + early +
           "<Focal>60</Focal><UI.Value>1</UI.Value><View.Flags>1</View.Flags>" +
           "<Start.NodeID UUID=\"" + kOtherId + "\"/>" + optionsRow().fresh + viewInfoRow().fresh +
           late + "</PanoramaV2></E>";
}

template <class Object>
std::string read(CTestDocument& document, Object& object, const std::string& file,
                 bool getUUID = true)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), getUUID);
    return messageOf([&] { object.getXML(io, source.element()); });
}

} // namespace

TEST(PanoramaXml, FileForm)
{
    CForm form;
    form.readOrder = {
        "UUID",     "Name",       "Direction",         "Focal",           "Current.Focal",
        "UI.Value", "View.Flags", "Current.Direction", "Current.Node.Id", "Start.NodeID",
        "Options",  "View.Info",  "PanoramaV2.Nodes",  "PanoV2.Links",    "Parallel.Views"};
    checkElement(
        "PanoramaV2", panoramaRows(),
        [](CTestDocument& document) {
            TZelComPtr panorama = made<CZelPanoramaV2>(document);
            panorama->getViewInfo()->setId(&kFreshInfoId);
            return panorama;
        },
        form);
}

TEST(PanoNodeXml, FileForm)
{
    const std::vector<CRow> rows = {
        attribute("UUID", kFileId, kMadeId),
        absentAlsoDrops(optional(raw("Name", "<Name en=\"Hall\"/>", "<Name en=\"\"/>")),
                        {"UUID", "Position", "Direction"}),
        absentAlsoDrops(optional(xyz("Position", {1, 2, 3}, {0, 0, 0})),
                        {"UUID", "Name", "Direction"}),
        absentGives(raw("Direct.Neighboring", "<Direct.Neighboring/>", "<Direct.Neighboring/>"),
                    "<Direct.Neighboring/>"),
        optional(xyz("Direction", {1, 0, 0}, {0, 0, 1})),
    };
    checkElement("PanoramaV2.Node", rows, made<CZelPanoNodeV2>);
}

TEST(PanoLinkXml, FileForm)
{
    const std::vector<CRow> rows = {
        attribute("UUID", kFileId, kMadeId),
        idElement("Start", kOtherId),
        idElement("End", kFileId),
        idElement("Path.Id", kMadeId),
    };
    checkElement("PanoV2.Link", rows, made<CZelPanoLinkV2>);
}

TEST(PanoramaXml, OwnIdentifiersAreTakenOnlyWhenWanted)
{
    for (const bool getUUID : {true, false}) {
        CTestDocument document;
        const CZelUUID expected((getUUID ? kFileId : kMadeId).c_str());
        const auto panorama = made<CZelPanoramaV2>(document);
        ASSERT_EQ(read(document, *panorama, panoramaFile("", "<PanoramaV2.Nodes/><PanoV2.Links/>"),
                       getUUID),
                  "no exception");
        EXPECT_EQ(*panorama->getId(), expected);
        EXPECT_EQ(panorama->getStartNode(), CZelUUID(kOtherId.c_str()));
        const auto node = made<CZelPanoNodeV2>(document);
        ASSERT_EQ(read(document, *node,
                       "<E><PanoramaV2.Node UUID=\"" + kFileId +
                           "\"><Name en=\"\"/><Position/></PanoramaV2.Node></E>",
                       getUUID),
                  "no exception");
        EXPECT_EQ(*node->getId(), expected);
        const auto link = made<CZelPanoLinkV2>(document);
        const std::string id = " UUID=\"" + kOtherId + "\"";
        ASSERT_EQ(read(document, *link,
                       "<E><PanoV2.Link UUID=\"" + kFileId + "\"><Start" + id + "/><End" + id +
                           "/><Path.Id" + id + "/></PanoV2.Link></E>",
                       getUUID),
                  "no exception");
        EXPECT_EQ(*link->getId(), expected);
        EXPECT_EQ(link->getStart(), CZelUUID(kOtherId.c_str()));
    }
}

TEST(PanoramaXml, TheCurrentFocalIsNotRead)
{
    CTestDocument document;
    const auto panorama = made<CZelPanoramaV2>(document);
    ASSERT_EQ(read(document, *panorama,
                   panoramaFile("<Current.Focal>99</Current.Focal>",
                                "<PanoramaV2.Nodes/><PanoV2.Links/>")),
              "no exception");
    EXPECT_EQ(panorama->getFocal(), 60.0);
}

TEST(PanoramaXml, ANodeWithoutANameOrAPositionStaysNewAndTheOthersAreRead)
{
    CTestDocument document;
    const auto panorama = made<CZelPanoramaV2>(document);
    const std::string start = "<PanoramaV2.Node UUID=\"" + kFileId + "\">";
    const std::string end = "<Direction X=\"1\" Y=\"0\" Z=\"0\"/></PanoramaV2.Node>";
    const std::string nodes = start + "<Name en=\"A\"/>" + end + start + "<Position X=\"1\"/>" +
                              end + start + "<Name en=\"C\"/><Position X=\"1\"/>" + end;
    ASSERT_EQ(
        read(document, *panorama,
             panoramaFile("", "<PanoramaV2.Nodes>" + nodes + "</PanoramaV2.Nodes><PanoV2.Links/>")),
        "no exception");
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
    ASSERT_EQ(panorama->getNodes()->getNbObjects(), 3);
    for (int i = 0; i < 2; ++i) {
        const CZelPanoNodeV2& node = *panorama->getNodes()->at(i);
        EXPECT_STREQ(node.getName(), "");
        EXPECT_NE(*node.getId(), CZelUUID(kFileId.c_str()));
        EXPECT_TRUE(isSame(node.getPosition(), CZelPoint{0, 0, 0}));
        EXPECT_TRUE(isSame(node.getDirection(), CZelPoint{0, 0, 1}));
    }
    EXPECT_STREQ(panorama->getNodes()->at(2)->getName(), "C");
    EXPECT_EQ(*panorama->getNodes()->at(2)->getId(), CZelUUID(kFileId.c_str()));
}

TEST(PanoramaXml, ListsAreReplacedByThoseOfTheFile)
{
    CTestDocument document;
    const auto panorama = made<CZelPanoramaV2>(document);
    panorama->getNodes()->newZelObject(-1);
    panorama->getLinks()->newZelObject(-1);
    panorama->getParallelViews()->newZelObject(-1);
    ASSERT_EQ(read(document, *panorama, panoramaFile("", "<PanoramaV2.Nodes/><PanoV2.Links/>")),
              "no exception");
    EXPECT_EQ(panorama->getNodes()->getNbObjects(), 0);
    EXPECT_EQ(panorama->getLinks()->getNbObjects(), 0);
    EXPECT_EQ(panorama->getParallelViews()->getNbObjects(), 0);
}

TEST(PanoramaXml, AMissingListIsEmptiedAndFails)
{
    struct {
        const char *lists, *message;
        std::int32_t nbLinks;
    } const cases[] = {
        {"", "CZelXMLGet::GetElement - NULL ptr for tag PanoramaV2.Nodes", 1},
        {"<PanoramaV2.Nodes/>", "CZelXMLGet::GetElement - NULL ptr for tag PanoV2.Links", 0},
    };
    for (const auto& [lists, message, nbLinks] : cases) {
        CTestDocument document;
        const auto panorama = made<CZelPanoramaV2>(document);
        panorama->getNodes()->newZelObject(-1);
        panorama->getLinks()->newZelObject(-1);
        EXPECT_EQ(read(document, *panorama, panoramaFile("", lists)), message);
        EXPECT_EQ(panorama->getNodes()->getNbObjects(), 0);
        EXPECT_EQ(panorama->getLinks()->getNbObjects(), nbLinks) << message;
    }
}

TEST(PanoramaXml, ReadingKeepsTheLinksThatLeadNowhere)
{
    CTestDocument document;
    const auto panorama = made<CZelPanoramaV2>(document);
    const std::string id = " UUID=\"" + kOtherId + "\"/>";
    const std::string link =
        "<PanoV2.Link><Start" + id + "<End" + id + "<Path.Id" + id + "</PanoV2.Link>";
    ASSERT_EQ(read(document, *panorama,
                   panoramaFile("", "<PanoramaV2.Nodes/>" + elementText("PanoV2.Links", link))),
              "no exception");
    EXPECT_EQ(panorama->getLinks()->getNbObjects(), 1); // the document asks for their removal
    panorama->removeDanglingLinks();
    EXPECT_EQ(panorama->getLinks()->getNbObjects(), 0);
}

TEST(PanoramaXml, PositionsAndDirectionsPassThroughTheReadTransform)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double point[3] = {1, 0, 0}, direction[3] = {1, 0, 1};
    document.ref()->transformPoint(point);
    document.ref()->transformNormal(direction);
    const CZelPoint position{point[0], point[1], point[2]};
    const CZelPoint normal{direction[0], direction[1], direction[2]};
    ASSERT_FALSE(isSame(normal, CZelPoint{1, 0, 1}));
    const auto panorama = made<CZelPanoramaV2>(document);
    const std::string node = "<PanoramaV2.Node><Name en=\"A\"/><Position X=\"1\"/>"
                             "<Direction X=\"1\"/></PanoramaV2.Node>";
    ASSERT_EQ(read(document, *panorama,
                   panoramaFile("<Direction X=\"1\"/><Current.Direction X=\"1\"/>",
                                elementText("PanoramaV2.Nodes", node) + "<PanoV2.Links/>")),
              "no exception");
    EXPECT_TRUE(isSame(panorama->getDirection(), normal));
    EXPECT_TRUE(isSame(panorama->getCurrentDirection(), normal));
    EXPECT_TRUE(isSame(panorama->getNodes()->at(0)->getPosition(), position));
    EXPECT_TRUE(isSame(panorama->getNodes()->at(0)->getDirection(), normal));
}
