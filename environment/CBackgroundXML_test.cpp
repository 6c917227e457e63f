#include "environment/CBackground.h"

#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

std::string backgroundText(const std::string& tag, const std::string& power,
                           const std::string& image = "Motif", const std::string& color = "Uniform")
{
    return "<" + tag + " Image.Type=\"" + image + "\" Color.Type=\"" + color +
           "\"><Color R=\"1\" G=\"2\" B=\"3\"/><Second.Color R=\"4\" G=\"5\" B=\"6\"/>"
           "<Up.Direction X=\"1.000000\" Y=\"2.000000\" Z=\"3.000000\"/><Line.Power>" +
           power +
           "</Line.Power><URL>u</URL><Origin>7.000000</Origin>"
           "<Direction.Angle>8.000000</Direction.Angle></" +
           tag + ">";
}

std::string elementOf(const CTestElement& target)
{
    const std::string text = target.text();
    return text.substr(text.find("<E"));
}

} // namespace

TEST(BackgroundXml, FileForm)
{
    const std::vector<CRow> rows = {
        required(oneOf(attribute("Image.Type", "QTVRCubic", "None"),
                       {"None", "Stretched", "3D", "Motif", "QTVRCubic"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Image.Type"),
        required(oneOf(attribute("Color.Type", "Graduated.Line", "Graduated"),
                       {"None", "Uniform", "Graduated", "Graduated.Line"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Color.Type"),
        color("Color", {1, 2, 3}, {255, 255, 255}),
        color("Second.Color", {4, 5, 6}, {0, 100, 255}),
        xyz("Up.Direction", {7.0, 8.0, 9.0}, {1.296153, 1.0, 0.0}),
        real("Line.Power", 10.0, 1.0),
        text("URL", "old.png", ""),
        real("Origin", 11.0, 0.0),
        flag("Use.Default", true),
        real("Direction.Angle", 12.0, 0.0),
    };
    checkElement<CBackground>("Background", rows);
}

TEST(BackgroundXml, TheOldSpellingIsReadAndTheNewOneWritten)
{
    CTestDocument document;
    CBackground background(document.ref());
    CTestElement file("<E><A/>" + backgroundText("Backgroung", "2.000000") + "<Z/></E>");
    ASSERT_TRUE(background.initWithXML(file.element(), false));
    EXPECT_EQ(background.getLinePower(), 2.0);
    ASSERT_NE(background.putInXML(file.element()), nullptr);
    EXPECT_EQ(elementOf(file), "<E><A/><Z/>" + backgroundText("Background", "2.000000") + "</E>");
    ASSERT_NE(background.putInXML(file.element()), nullptr);
    EXPECT_EQ(elementOf(file), "<E><A/><Z/>" + backgroundText("Background", "2.000000") + "</E>")
        << "replaced, not added";
}

TEST(BackgroundXml, OfBothSpellingsTheOldOneIsRead)
{
    CTestDocument document;
    CBackground background(document.ref());
    const CTestElement file("<E>" + backgroundText("Background", "2") +
                            backgroundText("Backgroung", "3") + "</E>");
    ASSERT_TRUE(background.initWithXML(file.element(), false));
    EXPECT_EQ(background.getLinePower(), 3.0);
}

TEST(BackgroundXml, AFilesLinePowerIsClippedWithTheWarning)
{
    CTestDocument document;
    CBackground background(document.ref());
    const CTestElement file("<E>" + backgroundText("Background", "500") + "</E>");
    ASSERT_TRUE(background.initWithXML(file.element(), false));
    EXPECT_EQ(background.getLinePower(), 100.0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Method setLinePower has clipped a value out of range."});
}

TEST(BackgroundXml, TheUpDirectionPassesTheVectorTransform)
{
    CTestDocument document;
    // Scales by two and shifts; a vector is not shifted.
    const double matrix[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    document.ref()->setMatrix(matrix);
    CBackground background(document.ref());
    const CTestElement file("<E>" + backgroundText("Background", "1") + "</E>");
    ASSERT_TRUE(background.initWithXML(file.element(), false));
    EXPECT_EQ(background.getUpDirection().x, 2.0);
    EXPECT_EQ(background.getUpDirection().y, 4.0);
    EXPECT_EQ(background.getUpDirection().z, 6.0);
}

TEST(BackgroundXml, TheLabels)
{
    const char* const images[] = {"None", "Stretched", "3D", "Motif", "QTVRCubic"};
    const char* const colors[] = {"None", "Uniform", "Graduated", "Graduated.Line"};
    CTestDocument document;
    for (std::int32_t i = 0; i < 5; ++i)
        for (std::int32_t c = 0; c < 4; ++c) {
            CBackground background(document.ref());
            const std::string text =
                "<E>" + backgroundText("Background", "1.000000", images[i], colors[c]) + "</E>";
            const CTestElement file(text);
            ASSERT_TRUE(background.initWithXML(file.element(), false));
            EXPECT_EQ(background.getImageType(), i);
            EXPECT_EQ(background.getColorType(), c);
            CTestElement target;
            ASSERT_NE(background.putInXML(target.element()), nullptr);
            EXPECT_EQ(elementOf(target), text);
        }
}

TEST(BackgroundXml, UnknownLabelsAndAMissingElementFail)
{
    struct {
        std::string xml, message;
    } const cases[] = {
        {backgroundText("Background", "1", "motif"), "Invalid label (motif) [None..QTVRCubic]"},
        {backgroundText("Background", "1", "Motif", ""), "Invalid label () [None..Graduated.Line]"},
        {"<Other/>", "CZelXMLGet::GetElement - NULL ptr for tag Background"},
    };
    for (const auto& [xml, message] : cases) {
        CTestDocument document;
        CBackground background(document.ref());
        const CTestElement file("<E>" + xml + "</E>");
        EXPECT_FALSE(background.initWithXML(file.element(), false));
        EXPECT_EQ(document.takeMessages(),
                  std::vector<std::string>{"Exception in CZelXML::initWithXML : " + message});
    }
    CTestDocument document;
    CBackground background(document.ref());
    background.setImageType(5);
    CTestElement target;
    EXPECT_EQ(background.putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::putInXML : No label for the value "
                                       "(5) [None..QTVRCubic]"});
}
