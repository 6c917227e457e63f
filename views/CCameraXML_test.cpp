#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/viewParts.h"
#include "views/CCamera.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

constexpr char kNullId[] = "00000000000000000000000000000000";

std::vector<CRow> cameraRows()
{
    return {
        required(raw("Name", R"(<Name en="Ice &amp; snow"/>)", R"(<Name en="View 0"/>)"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        integer("View.Flags", -3, 2),
        xyz("Position", {1, 2, 3}, {50, 50, -60}),
        xyz("Target", {4, 5, 6}, {50, 50, 50}),
        real("Roll", 1.5, 0.00001),
        real("Focal", 70.5, 50.0),
        attribute("Object.Id", "000102030405060708090A0B0C0D0E0F", kNullId),
        oneOf(attribute("Target.type", "On.Object", "Fixed.Vertex"), {"Fixed.Vertex", "On.Object"}),
        viewInfoRow(),
        optionsRow(),
        optional(raw("InsertionObject", "<InsertionObject/>", "<InsertionObject/>")),
        optional(raw("Up", R"(<Up X="1.000000" Y="0.000000" Z="0.000000"/>)", "")),
        flag("Architect.Flag", false),
    };
}

/// A camera element with what is required, and the text ahead of and in the middle of it.
std::string cameraFile(const std::string& attributes, const std::string& roll,
                       const std::string& focal, const std::string& rest)
{
    return "<E><Perspective.View" + attributes +
           R"(><Name en="N"/><View.Flags>1</View.Flags><Position/><Target/><Roll>)" + roll +
           "</Roll><Focal>" + focal + "</Focal>" + viewInfoRow().fresh + optionsRow().fresh + rest +
           "</Perspective.View></E>";
}

} // namespace

TEST(CameraXml, FileForm)
{
    checkElement("Perspective.View", cameraRows(), newView<CCamera>());
}

TEST(CameraXml, AnActiveInsertionObjectComesBack)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    camera->getInsertionObject()->setActive(true);
    camera->getInsertionObject()->setValue(2, 4.5F);
    CTestElement element;
    ASSERT_NE(camera->putInXML(element.element()), nullptr);
    TZelComPtr other(new CCamera(document.ref()));
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_TRUE(other->getInsertionObject()->getActive());
    EXPECT_EQ(other->getInsertionObject()->getValue(2), 4.5F);
}

TEST(CameraXml, RollAndFocalOfAFileAreTreatedAsThoseOfAClient)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    CTestElement element(cameraFile("", "7", "200", ""));
    EXPECT_TRUE(camera->initWithXML(element.element(), true));
    EXPECT_NEAR(camera->getRoll(), 0.716815, 1e-6);
    EXPECT_EQ(camera->getFocal(), 180.0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Method setFocal has clipped a value out of range."});
}

TEST(CameraXml, AFileWithoutUpLeavesItUnsetAndUnwritten)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    CTestElement element(cameraFile("", "1", "50", ""));
    EXPECT_TRUE(camera->initWithXML(element.element(), true));
    EXPECT_FALSE(camera->getUpIsSet());
    EXPECT_TRUE(isSame(camera->getUp(), CZelPoint{0.0, 1.0, 0.0}));
    CTestElement target;
    ASSERT_NE(camera->putInXML(target.element()), nullptr);
    EXPECT_EQ(target.text().find("<Up"), std::string::npos);
}

TEST(CameraXml, AnUpWithoutAttributesPointsAlongZ)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    CTestElement element(cameraFile("", "1", "50", "<Up/>"));
    EXPECT_TRUE(camera->initWithXML(element.element(), true));
    EXPECT_TRUE(camera->getUpIsSet());
    EXPECT_TRUE(isSame(camera->getUp(), CZelPoint{0.0, 0.0, 1.0}));
}

TEST(CameraXml, PointsAndUpPassThroughTheReadTransform)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 0, 0, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double point[3] = {0, 0, 0};
    document.ref()->transformPoint(point);
    double up[3] = {1, 0, 0};
    document.ref()->transformNormal(up);
    ASSERT_NE(point[0], 0.0);
    ASSERT_NE(up[0], 1.0);
    TZelComPtr camera(new CCamera(document.ref()));
    CTestElement element(cameraFile("", "1", "50", R"(<Up X="1" Y="0" Z="0"/>)"));
    EXPECT_TRUE(camera->initWithXML(element.element(), true));
    EXPECT_TRUE(isSame(camera->getPosition(), CZelPoint{point[0], point[1], point[2]}));
    EXPECT_TRUE(isSame(camera->getTarget(), CZelPoint{point[0], point[1], point[2]}));
    EXPECT_TRUE(isSame(camera->getUp(), CZelPoint{up[0], up[1], up[2]}));
}

TEST(CameraXml, FailuresAreTold)
{
    struct {
        std::string file, message;
    } cases[] = {
        {"<E/>", "CZelXMLGet::GetElement - NULL ptr for tag Perspective.View"},
        {cameraFile(" Target.type=\"Here\"", "1", "50", ""),
         "Invalid label (Here) [Fixed.Vertex..On.Object]"},
        {cameraFile(" Object.Id=\"0G\"", "1", "50", ""), "CZelUUID::Hex2Int: Invalid hex value"},
        {cameraFile("", "", "50", ""), "CZelXMLGet::GetDouble - NULL ptr"},
    };
    for (const auto& [file, message] : cases) {
        CTestDocument document;
        TZelComPtr camera(new CCamera(document.ref()));
        CTestElement element(file);
        EXPECT_FALSE(camera->initWithXML(element.element(), true)) << message;
        EXPECT_EQ(
            document.takeMessages(),
            std::vector<std::string>{"Exception in CZelXMLBasicData::initWithXML : " + message});
    }
}

TEST(CameraXml, ItsOwnIdentifierAndNumberAreNotInTheFile)
{
    CTestDocument document;
    TZelComPtr camera(new CCamera(document.ref()));
    camera->setUIValue(987654321);
    const CZelUUID id{"0123456789ABCDEF0123456789ABCDEF"};
    camera->setId(&id);
    CTestElement element;
    ASSERT_NE(camera->putInXML(element.element()), nullptr);
    EXPECT_EQ(element.text().find("0123456789ABCDEF"), std::string::npos);
    EXPECT_EQ(element.text().find("987654321"), std::string::npos);
    TZelComPtr other(new CCamera(document.ref()));
    EXPECT_TRUE(other->initWithXML(element.element(), true));
    EXPECT_NE(*other->getId(), id);
    EXPECT_EQ(*other->getViewInfo()->getId(), *camera->getViewInfo()->getId());
}
