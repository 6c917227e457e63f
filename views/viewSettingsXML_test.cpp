#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "views/CZelCameraLight.h"
#include "views/CZelClippingBox.h"
#include "views/CZelDepthOfField.h"
#include "views/CZelLaser.h"

// The small settings of a view: their file forms, and that their setters store what they are given.

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::vector<CRow> kLightRows = {
    flag("Used", false), color("Color", {1, 2, 3}, {255, 255, 255}), real("Power", 2.5, 1.0)};

auto newLight(std::uint8_t kind)
{
    return [kind](CTestDocument& document) {
        return std::make_unique<CZelCameraLight>(document.ref(), kind);
    };
}

} // namespace

TEST(CameraLightXml, FileFormFollowsTheKind)
{
    checkElement("Camera.Light", kLightRows, newLight(0));
    checkElement("Radiosity.Light", kLightRows, newLight(1));
    checkElement("Radiosity.Light", kLightRows, newLight(2));
}

TEST(CameraLight, StoresWhatItIsGiven)
{
    using I = IZelCameraLight;
    CZelCameraLight light(nullptr, CZelCameraLight::kCamera);
    EXPECT_EQ(light.getColor(), CZelColor::rgb(255, 255, 255));
    EXPECT_EQ(light.getColor().bytes[0], 0);
    expectAccessors<I>(light, {ACCESS(I, Used, true), ACCESS(I, Kind, 255),
                               ACCESS(I, Color, CZelColor::rgb(1, 2, 3)), ACCESS(I, Power, -7.0)});
}

TEST(DepthOfFieldXml, FileForm)
{
    const std::vector<CRow> rows = {
        flag("Used", false),
        required(oneOf(attribute("Type", "FromDistance", "FromPoint"),
                       {"FromPoint", "FromTarget", "FromInfinity", "FromDistance"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        xyz("Clearness.Point", {1, 2, 3}, {0, 0, 0}),
        real("Clearness.Dist.Inv", 4.5, 0.0),
        real("Clearness.Size.Inv", 5.5, 0.0),
    };
    checkElement<CZelDepthOfField>("Depth.Of.Field", rows);
}

TEST(DepthOfFieldXml, TypeLabels)
{
    const char* const labels[] = {"FromPoint", "FromTarget", "FromInfinity", "FromDistance"};
    for (std::int32_t type = 0; type < 4; ++type) {
        CTestDocument document;
        CZelDepthOfField field(document.ref());
        field.setType(type);
        CTestElement element;
        ASSERT_NE(field.putInXML(element.element()), nullptr);
        EXPECT_NE(element.text().find(std::string("Type=\"") + labels[type] + "\""),
                  std::string::npos);
        CZelDepthOfField other(document.ref());
        EXPECT_TRUE(other.initWithXML(element.element(), true));
        EXPECT_EQ(other.getType(), type);
    }
}

TEST(DepthOfFieldXml, ANumberWithoutLabelIsStoredAndCannotBeWritten)
{
    CTestDocument document;
    CZelDepthOfField field(document.ref());
    field.setType(4);
    EXPECT_EQ(field.getType(), 4);
    CTestElement element;
    EXPECT_EQ(field.putInXML(element.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::putInXML : No label for the value "
                                       "(4) [FromPoint..FromDistance]"});
}

TEST(DepthOfFieldXml, ABadLabelFails)
{
    CTestDocument document;
    CZelDepthOfField field(document.ref());
    CTestElement element("<E><Depth.Of.Field Type=\"FromHere\"/></E>");
    EXPECT_FALSE(field.initWithXML(element.element(), true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : Invalid label "
                                       "(FromHere) [FromPoint..FromDistance]"});
}

TEST(DepthOfField, StoresWhatItIsGiven)
{
    using I = IZelDepthOfField;
    CZelDepthOfField field(nullptr);
    expectAccessors<I>(field, {ACCESS(I, Used, true), ACCESS(I, Type, -1),
                               ACCESS(I, ClearnessPoint, (CZelPoint{1, 2, 3})),
                               ACCESS(I, ClearnessDistanceInverse, -1.0),
                               ACCESS(I, ClearnessSizeInverse, 1e9)});
}

TEST(ClippingBoxXml, FileForm)
{
    // Without "Pivot" the one of the maximum is written.
    const std::vector<CRow> rows = {
        xyz("Minimum", {1, 2, 3}, {0, 0, 0}),
        xyz("Maximum", {4, 5, 6}, {0, 0, 0}),
        absentGives(xyz("Pivot", {7, 8, 9}, {0, 0, 0}),
                    R"(<Pivot X="0.000000" Y="0.000000" Z="7.000000"/>)"),
        flag("Visible", false),
        flag("Active", false),
        optional(real("Angle", 10.5, 0.0)),
    };
    checkElement<CZelClippingBox>("Clipping.Box", rows);
}

TEST(LaserXml, FileForm)
{
    const std::vector<CRow> rows = {
        flag("Active", false),
        xyz("Normal", {1, 0, 0}, {0, 0, 1}),
        xyz("Reference", {4, 5, 6}, {0, 0, 0}),
        real("Distance", 7.5, 0.0),
    };
    checkElement<CZelLaser>("Laser", rows);
}

TEST(LaserXml, AMissingCoordinateOfTheNormalIsThatOfANewOne)
{
    CTestDocument document;
    CZelLaser laser(document.ref());
    CTestElement element(
        "<E><Laser><Normal X=\"2\"/><Reference/><Distance>1</Distance></Laser></E>");
    EXPECT_TRUE(laser.initWithXML(element.element(), true));
    EXPECT_TRUE(isSame(laser.getNormal(), CZelPoint{2.0, 0.0, 1.0}));
}

TEST(Laser, StoresWhatItIsGiven)
{
    using I = IZelLaser;
    CZelLaser laser(nullptr);
    expectAccessors<I>(laser,
                       {ACCESS(I, Active, true), ACCESS(I, Normal, (CZelPoint{1, 2, 3})),
                        ACCESS(I, Reference, (CZelPoint{4, 5, 6})), ACCESS(I, Distance, -2.0)});
}

TEST(ViewSettingsXml, PointsAndTheNormalPassThroughTheReadTransform)
{
    // Twice as large, turned by a quarter about z, moved by 10 along x.
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 0, 0, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double point[3] = {1, 2, 3};
    document.ref()->transformPoint(point);
    double normal[3] = {1, 0, 0};
    document.ref()->transformNormal(normal);
    ASSERT_NE(point[0], 1.0);
    ASSERT_NE(normal[0], 1.0);

    CTestElement element("<E><Laser><Normal X=\"1\" Y=\"0\" Z=\"0\"/>"
                         "<Reference X=\"1\" Y=\"2\" Z=\"3\"/><Distance>1</Distance></Laser>"
                         "<Clipping.Box><Minimum X=\"1\" Y=\"2\" Z=\"3\"/>"
                         "<Maximum X=\"1\" Y=\"2\" Z=\"3\"/><Pivot X=\"1\" Y=\"2\" Z=\"3\"/>"
                         "</Clipping.Box>"
                         "<Depth.Of.Field Type=\"FromPoint\"><Clearness.Point X=\"1\" Y=\"2\" "
                         "Z=\"3\"/><Clearness.Dist.Inv>1</Clearness.Dist.Inv>"
                         "<Clearness.Size.Inv>1</Clearness.Size.Inv></Depth.Of.Field></E>");
    CZelLaser laser(document.ref());
    CZelClippingBox box(document.ref());
    CZelDepthOfField field(document.ref());
    EXPECT_TRUE(laser.initWithXML(element.element(), true));
    EXPECT_TRUE(box.initWithXML(element.element(), true));
    EXPECT_TRUE(field.initWithXML(element.element(), true));
    const CZelPoint there{point[0], point[1], point[2]};
    EXPECT_TRUE(isSame(laser.getNormal(), CZelPoint{normal[0], normal[1], normal[2]}));
    EXPECT_TRUE(isSame(laser.getReference(), there));
    EXPECT_TRUE(isSame(box.getMinimum(), there));
    EXPECT_TRUE(isSame(box.getMaximum(), there));
    EXPECT_TRUE(isSame(box.getPivot(), there));
    EXPECT_TRUE(isSame(field.getClearnessPoint(), there));
}
