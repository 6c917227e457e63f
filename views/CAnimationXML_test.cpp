#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/viewParts.h"
#include "views/CAnimation.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const char* const kPoint = R"(<Point X="1.000000" Y="2.000000" Z="3.000000"/>)";

std::vector<CRow> keyRows()
{
    return {
        real("Pitch", 100.5, 0),
        real("Focal", 2.5, 0),
        required(oneOf(attribute("Key.Type", "Target", "Timing"),
                       {"Timing", "Path", "Local", "Global", "Target"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Key.Type"),
        integer("Fading.Duration", -3, 0),
        integer("Fading.Nb.Images", -4, 0),
        real("Horizontal.Angle", -5.5, 0),
        real("Vertical.Angle", -6.5, 0),
        real("Anticipation", 0.25, 0),
        integer("Bezier.Section", 7, 0),
        real("Bezier.T", 0.5, 0),
        integer("Bezier.Transition", 8, 0),
        real("Bezier.Transition.T", 0.75, 0),
        xyz("Target", {1, 2, 3}, {0, 0, 0}),
    };
}

/// The element of a key of all zeros but for the pitch.
std::string keyText(const std::string& pitch, const std::string& type = "Local",
                    const std::string& rest = "0", const std::string& section = "0")
{
    std::string text = "<Camera.Key Key.Type=\"" + type + "\">" + elementText("Pitch", pitch);
    for (const char* tag :
         {"Focal", "Fading.Duration", "Fading.Nb.Images", "Horizontal.Angle", "Vertical.Angle"})
        text += elementText(tag, "0");
    text += elementText("Anticipation", rest) + elementText("Bezier.Section", section) +
            elementText("Bezier.T", rest) + elementText("Bezier.Transition", section) +
            elementText("Bezier.Transition.T", rest);
    return text + "<Target X=\"1\" Y=\"0\" Z=\"0\"/></Camera.Key>";
}

std::string keyAsWritten()
{
    CTestDocument document;
    CCamKey key;
    key.setPitch(9.5);
    return partText(document, "Camera.Key", key);
}

std::string pathFile(const std::string& duration, const std::string& nbImages,
                     const std::string& points, const std::string& keys)
{
    return "<E><Camera.Path><Name en=\"N\"/>" + elementText("Movie.Duration", duration) +
           elementText("Nb.Images.Extra", nbImages) + "<Speed>1</Speed>" +
           elementText("Points", points) + elementText("Camera.Keys", keys) + viewInfoRow().fresh +
           "<Current.Time>1</Current.Time></Camera.Path></E>";
}

std::string read(CTestDocument& document, CAnimation& path, const std::string& file)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { path.getXML(io, source.element()); });
}

} // namespace

TEST(CamKeyXml, FileForm)
{
    checkElement("Camera.Key", keyRows(),
                 [](CTestDocument&) { return std::make_unique<CCamKey>(); });
}

TEST(CamKeyXml, EveryTypeHasItsName)
{
    const char* const labels[] = {"Timing", "Path", "Local", "Global", "Target"};
    CTestDocument document;
    for (std::int32_t type = 0; type < 5; ++type) {
        CAnimation path(document.ref());
        ASSERT_EQ(read(document, path, pathFile("1", "1", "", keyText("1", labels[type]))),
                  "no exception");
        EXPECT_EQ(path.getKeys()->at(0)->getKeyType(), type);
        EXPECT_NE(partText(document, "K", *path.getKeys()->at(0))
                      .find("Key.Type=\"" + std::string(labels[type]) + "\""),
                  std::string::npos);
    }
    CCamKey key;
    key.setKeyType(5);
    EXPECT_EQ(messageOf([&] { partText(document, "K", key); }),
              "No label for the value (5) [Timing..Target]");
    CAnimation path(document.ref());
    EXPECT_EQ(read(document, path, pathFile("1", "1", "", keyText("1", "Other"))),
              "Invalid label (Other) [Timing..Target]");
}

TEST(CameraPathXml, FileForm)
{
    const std::string point = kPoint, key = keyAsWritten();
    const std::vector<CRow> rows = {
        required(raw("Name", "<Name en=\"Walk\"/>", "<Name en=\"Sequence 0\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        flag("View.Flags", false),
        flag("Active", true),
        real("Movie.Duration", 9.5, 4.0),
        integer("Nb.Images.Extra", 3, 0),
        flag("Speed.On", false),
        real("Speed", 2.5, 0.0),
        flag("Path.Closed", true),
        raw("Points", elementText("Points", point + point), "<Points/>"),
        raw("Camera.Keys", elementText("Camera.Keys", key + key), "<Camera.Keys/>"),
        viewInfoRow(),
        real("Current.Time", 1.5, 0.0),
    };
    checkElement("Camera.Path", rows, [](CTestDocument& document) {
        auto path = std::make_unique<CAnimation>(document.ref());
        path->getViewInfo()->setId(&kFreshInfoId);
        return path;
    });
}

TEST(CameraPathXml, KeysAreClippedInSilenceAndTimesWithAWarning)
{
    CTestDocument document;
    CAnimation path(document.ref());
    const std::string keys = keyText("400", "Local", "2", "-1") + keyText("-1", "Local", "-2");
    ASSERT_EQ(read(document, path, pathFile("1", "1", "", keys)), "no exception");
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
    const CCamKey& high = *path.getKeys()->at(0);
    EXPECT_EQ(high.getPitch(), 360.0);
    EXPECT_EQ(high.getAnticipation(), 1.0);
    EXPECT_EQ(high.getBezierSection(), 0);
    EXPECT_EQ(high.getBezierT(), 1.0);
    EXPECT_EQ(high.getBezierTransition(), 0);
    EXPECT_EQ(high.getBezierTransitionT(), 1.0);
    const CCamKey& low = *path.getKeys()->at(1);
    EXPECT_EQ(low.getPitch(), 0.0);
    EXPECT_EQ(low.getAnticipation(), 0.0);
    EXPECT_EQ(low.getBezierT(), 0.0);
    EXPECT_EQ(low.getBezierTransitionT(), 0.0);

    ASSERT_EQ(read(document, path, pathFile("-1", "-2", "", "")), "no exception");
    EXPECT_EQ(path.getDuration(), 0.0);
    EXPECT_EQ(path.getNbXImage(), 0);
    EXPECT_EQ(document.takeMessages(),
              (std::vector<std::string>{"Method setDuration has clipped a value out of range.",
                                        "Method setNbXImage has clipped a value out of range."}));
}

TEST(CameraPathXml, ListsAreReplacedByThoseOfTheFile)
{
    CTestDocument document;
    CAnimation path(document.ref());
    for (int i = 0; i < 2; ++i)
        ASSERT_EQ(read(document, path, pathFile("1", "1", kPoint, keyText("1"))), "no exception");
    EXPECT_EQ(path.getPoints()->getNbObjects(), 1);
    EXPECT_EQ(path.getKeys()->getNbObjects(), 1);
    EXPECT_EQ(read(document, path,
                   "<E><Camera.Path><Name en=\"N\"/><Movie.Duration>1</Movie.Duration>"
                   "<Nb.Images.Extra>1</Nb.Images.Extra><Speed>1</Speed></Camera.Path></E>"),
              "CZelXMLGet::GetElement - NULL ptr for tag Points");
    EXPECT_EQ(path.getPoints()->getNbObjects(), 0);
    EXPECT_EQ(path.getKeys()->getNbObjects(), 1); // was not reached
}

TEST(CameraPathXml, PointsAndTargetsPassThroughTheReadTransform)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double point[3] = {1, 0, 0};
    document.ref()->transformPoint(point);
    const CZelPoint expected{point[0], point[1], point[2]};
    ASSERT_FALSE(isSame(expected, CZelPoint{1, 0, 0}));
    CAnimation path(document.ref());
    // A coordinate that is missing is 0.
    ASSERT_EQ(read(document, path, pathFile("1", "1", "<Point X=\"1\"/>", keyText("1"))),
              "no exception");
    EXPECT_TRUE(isSame(*path.getPoints()->getZelObject(0), expected));
    EXPECT_TRUE(isSame(path.getKeys()->at(0)->getTarget(), expected));
}
