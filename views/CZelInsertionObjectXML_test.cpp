#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "views/CZelInsertionObject.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

std::string pair(double x, double y)
{
    return "<Vector2D X=\"" + std::to_string(x) + "\" Y=\"" + std::to_string(y) + "\"/>";
}

std::string pairs(int count, double x, double y, double step)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += pair(x + step * i, y + step * i);
    return text;
}

std::string triples(int count, double first)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "<Vector3D X=\"" + std::to_string(first + i) + "\" Y=\"" +
                std::to_string(first + i + 0.5) + "\" Z=\"" + std::to_string(-first) + "\"/>";
    return text;
}

/// The 42 pairs: flag D, size, both tables of vanishing points, three and six values, flag E.
std::string fullState()
{
    return pair(0, 1) + pair(640, 480) + pairs(15, 0.25, 0.5, 0.125) + pairs(15, 100, 200, 1.5) +
           pair(0, 2.5) + pair(1, 3.5) + pair(2, 4.5) + pair(0, 11.5) + pair(1, 12.5) +
           pair(2, 13.5) + pair(3, 14.5) + pair(4, 15.5) + pair(5, 16.5) + pair(0, 1);
}

std::string freshState()
{
    return pair(0, 0) + pair(1, 1) + pairs(30, 0, 0, 0) + pair(0, 0) + pair(1, 0) + pair(2, 0) +
           pair(0, 1) + pair(1, 1) + pair(2, 1) + pair(3, 1) + pair(4, 1) + pair(5, 1) + pair(0, 0);
}

std::vector<CRow> rowsOfInsertion()
{
    const auto list = [](const char* tag, const std::string& full, const std::string& fresh) {
        return optional(raw(tag, elementText(tag, full), elementText(tag, fresh)));
    };
    const std::string noTriple = "<Vector3D X=\"0.000000\" Y=\"0.000000\" Z=\"0.000000\"/>";
    return {
        list("AxesPositions", fullState(), freshState()),
        list("PerpectiveToolPositions", pairs(6, 1.5, 2.5, 1), pairs(6, 0, 0, 0)),
        list("ReperePositions", triples(4, 3.25), noTriple + noTriple + noTriple + noTriple),
        oneOf(attribute("SizeAxis", "ZAxis", "XAxis"), {"XAxis", "YAxis", "ZAxis"}),
        flag("AxesVisibility", false),
        flag("ModelVisibility", false),
        flag("PerpectiveToolVisibility", false),
        flag("YAxeInverted", false),
    };
}

/// Reads "InsertionObject" with this content.
bool read(CZelInsertionObject& object, const std::string& content,
          const std::string& attributes = "")
{
    CTestElement element("<E><InsertionObject" + attributes + ">" + content +
                         "</InsertionObject></E>");
    return object.initWithXML(element.element(), true);
}

} // namespace

TEST(InsertionObjectXml, FileFormOfAnActiveOne)
{
    checkElement("InsertionObject", rowsOfInsertion(), [](CTestDocument& document) {
        auto object = std::make_unique<CZelInsertionObject>(document.ref());
        object->setActive(true);
        return object;
    });
}

TEST(InsertionObjectXml, AnInactiveOneIsEmptyAndReplacesWhatWasThere)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setModelVisibility(true);
    CTestElement element("<E><InsertionObject><A/></InsertionObject><B/><InsertionObject/></E>");
    ASSERT_NE(object.putInXML(element.element()), nullptr);
    EXPECT_NE(element.text().find("<E><B/><InsertionObject/></E>"), std::string::npos);
}

TEST(InsertionObjectXml, AnEmptyElementMakesItInactiveAndLeavesTheRest)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setActive(true);
    object.setModelVisibility(true);
    object.setSizeAxis(1);
    EXPECT_TRUE(read(object, "", " SizeAxis=\"ZAxis\""));
    EXPECT_FALSE(object.getActive());
    EXPECT_TRUE(object.getModelVisibility());
    EXPECT_EQ(object.getSizeAxis(), 1);
}

TEST(InsertionObjectXml, AnyChildMakesItActiveAndSetsTheFlags)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setModelVisibility(true);
    EXPECT_TRUE(read(object, "<YAxeInverted/>"));
    EXPECT_TRUE(object.getActive());
    EXPECT_TRUE(object.getYAxeInverted());
    EXPECT_FALSE(object.getModelVisibility());
}

TEST(InsertionObjectXml, WithoutItsElementItFailsAlone)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    CTestElement element("<E/>");
    EXPECT_FALSE(object.initWithXML(element.element(), true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag "
                                       "InsertionObject"});
}

TEST(InsertionObjectXml, FourPairsAreTheAxesOfOlderFiles)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setFlagD(true);
    EXPECT_TRUE(read(object, elementText("AxesPositions", pairs(4, 1.5, 2.5, 1))));
    for (std::int32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(object.getAxesPosition(i).x, 1.5 + i);
        EXPECT_EQ(object.getAxesPosition(i).y, 2.5 + i);
    }
    EXPECT_TRUE(object.getFlagD());
    CZelPoint2D point{9, 9};
    object.getVanishingLinesPointsPosition(0, &point);
    EXPECT_EQ(point.x, 0.0);
    std::uint32_t width = 0;
    object.getPictureSize(&width, nullptr);
    EXPECT_EQ(width, 1U);
    EXPECT_TRUE(document.takeMessages().empty());
}

TEST(InsertionObjectXml, ChildrenBeyondATableWarn)
{
    struct {
        std::string content, warning;
        std::size_t count;
    } cases[] = {
        {elementText("AxesPositions", pairs(5, 1, 1, 0)), "setAxesPosition", 1},
        {elementText("AxesPositions", pairs(41, 1, 1, 0)), "setAxesPosition", 37},
        {elementText("AxesPositions", fullState() + pair(0, 0)), "setAxesPosition", 39},
        {elementText("PerpectiveToolPositions", pairs(8, 1, 1, 0)), "setPerpectiveToolPosition", 2},
        {elementText("ReperePositions", triples(5, 1)), "setReperePosition", 1},
    };
    for (const auto& [content, warning, count] : cases) {
        CTestDocument document;
        CZelInsertionObject object(document.ref());
        EXPECT_TRUE(read(object, content));
        EXPECT_EQ(document.takeMessages(),
                  std::vector<std::string>(count, warning + ": index out of range"));
    }
}

TEST(InsertionObjectXml, PairsCountByTheirPlacesAndAreStoredAsTheyAre)
{
    // The indices of the values are wrong on purpose, the normalised points don't fit the pixels,
    // and only exactly 1 is a true flag.
    const std::string state = pair(1, 0.5) + pair(100, 200) + pairs(15, 7, 8, 0) +
                              pairs(15, 10, 20, 0) + pair(2, 1.5) + pair(2, 2.5) + pair(2, 3.5) +
                              pairs(6, 0, 4.5, 0) + pair(1, 2);
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setFlagD(true);
    object.setFlagE(true);
    EXPECT_TRUE(read(object, elementText("AxesPositions", state)));
    EXPECT_FALSE(object.getFlagD());
    EXPECT_FALSE(object.getFlagE());
    EXPECT_EQ(object.getValue(0), 1.5F);
    EXPECT_EQ(object.getValue(1), 2.5F);
    EXPECT_EQ(object.getValue(2), 3.5F);
    EXPECT_EQ(object.getSixValue(5), 4.5F);
    CZelPoint2D point;
    object.getVanishingLinesPointsPosition(14, &point);
    EXPECT_EQ(point.x, 7.0);
    EXPECT_EQ(point.y, 8.0);
    EXPECT_EQ(object.getAxesPosition(0).x, 0.0);
}

TEST(InsertionObjectXml, ThePictureSizeOfAFileIsLimited)
{
    struct {
        const char* text;
        std::uint32_t size;
    } cases[] = {{"-1", 0U},
                 {"nan", 0U},
                 {"4294967295", 4294967295U},
                 {"4294967296", 4294967295U},
                 {"1e300", 4294967295U},
                 {"7.9", 7U}};
    for (const auto& [text, size] : cases) {
        CTestDocument document;
        CZelInsertionObject object(document.ref());
        const std::string pictureSize =
            std::string("<Vector2D X=\"") + text + "\" Y=\"" + text + "\"/>";
        EXPECT_TRUE(read(
            object, elementText("AxesPositions", pair(0, 0) + pictureSize + pairs(40, 0, 0, 0))));
        std::uint32_t width = 1;
        std::uint32_t height = 1;
        object.getPictureSize(&width, &height);
        EXPECT_EQ(width, size) << text;
        EXPECT_EQ(height, size) << text;
    }
}

TEST(InsertionObjectXml, AFailureLeavesWhatStoodAheadOfIt)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    EXPECT_FALSE(read(object, elementText("AxesPositions", pair(0, 1) + "<Vector2D X=\"2\"/>" +
                                                               pairs(40, 5, 5, 0))));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : "
                                       "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Y"});
    EXPECT_TRUE(object.getActive());
    EXPECT_TRUE(object.getFlagD());
    EXPECT_EQ(object.getValue(0), 0.0F);

    EXPECT_FALSE(read(object, "<YAxeInverted/>", " SizeAxis=\"UAxis\""));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXML::initWithXML : Invalid label "
                                       "(UAxis) [XAxis..ZAxis]"});
    EXPECT_FALSE(object.getYAxeInverted());
}

TEST(InsertionObjectXml, MemoryOnlyValuesAreNotInTheFile)
{
    CTestDocument document;
    CZelInsertionObject object(document.ref());
    object.setActive(true);
    object.setAxesPosition(0, {123.25, 123.25});
    object.addToAccumulator(123.25F);
    object.setFlagA(false);
    object.setFlagB(true);
    object.setFlagC(true);
    CTestElement element;
    ASSERT_NE(object.putInXML(element.element()), nullptr);
    EXPECT_EQ(element.text().find("123.25"), std::string::npos);
    CZelInsertionObject other(document.ref());
    EXPECT_TRUE(other.initWithXML(element.element(), true));
    EXPECT_TRUE(other.getFlagA());
    EXPECT_FALSE(other.getFlagB());
    EXPECT_FALSE(other.getFlagC());
}
