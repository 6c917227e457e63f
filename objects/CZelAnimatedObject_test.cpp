#include "objects/CZelAnimatedObject.h"

#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kMatrix =
    "<Initial.Matrix><Line Index=\"0\">1.000000, 5.000000, 9.000000, 13.000000</Line>"
    "<Line Index=\"1\">2.000000, 6.000000, 10.000000, 14.000000</Line>"
    "<Line Index=\"2\">3.000000, 7.000000, 11.000000, 15.000000</Line>"
    "<Line Index=\"3\">4.000000, 8.000000, 12.000000, 16.000000</Line></Initial.Matrix>";

std::string take(const std::string& name, const std::string& type = "OnPath")
{
    return "<Take Type=\"" + type + "\"><Duration>10</Duration><FPS>25</FPS><Name>" + name +
           "</Name><Z.Min>1.500000</Z.Min><Z.Angle>2.500000</Z.Angle></Take>";
}

class AnimatedObject : public testing::Test {
protected:
    /// Makes the interface from these object data.
    void read(const std::string& data)
    {
        const CTestElement source("<E>" + data + "</E>");
        mDefinition->setClass("");
        mDefinition->data().copyFrom(*source.element()->GetFirstElement());
        mDefinition->setClass("AnimatedObject");
    }
    std::string saved()
    {
        mDefinition->prepareForWrite();
        const CTestElement target;
        mDefinition->data().copyInto(*target.element());
        const std::string text = target.text();
        const std::size_t start = text.find("<Object.Data");
        return text.substr(start, text.size() - start - 4);
    }
    IZelAnimatedObject* object() { return mDefinition->asAnimatedObject(); }
    std::int32_t nbTakes() { return object()->getTakes()->getNbObjects(); }

    CTestDocument mDocument;
    TZelComPtr<CZelZelObjectDefinition> mDefinition{new CZelZelObjectDefinition(mDocument.ref())};
};

} // namespace

TEST(Take, FileForm)
{
    const std::vector<CRow> rows = {
        integer("Duration", 10, 0),
        integer("FPS", 25, 0),
        text("Name", "walk", ""),
        real("Z.Min", 1.5, 0),
        required(oneOf(attribute("Type", "OnPath", "Predefined"), {"Predefined", "OnPath"}),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type"),
        real("Z.Angle", -2.5, 0),
    };
    checkElement<CZelTake>("Take", rows);
}

TEST(Take, StoresAnything)
{
    CZelTake take(nullptr);
    take.setDuration(-1);
    take.setFPS(-2);
    take.setType(9);
    take.setName("run");
    take.setName(take.getName());
    EXPECT_EQ(take.getDuration(), -1);
    EXPECT_EQ(take.getFPS(), -2);
    EXPECT_EQ(take.getType(), 9);
    EXPECT_STREQ(take.getName(), "run");
    take.setName(nullptr);
    EXPECT_STREQ(take.getName(), "");
}

TEST_F(AnimatedObject, NewData)
{
    mDefinition->setClass("AnimatedObject");
    EXPECT_EQ(object()->getExternalFileType(), 0);
    EXPECT_STREQ(object()->getExternalFile(), "");
    EXPECT_EQ(object()->getIndex(), 0);
    EXPECT_EQ(nbTakes(), 0);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(object()->getInitialMatrix()[i], i % 5 == 0 ? 1.0 : 0.0);
    EXPECT_EQ(mDocument.takeMessages(), std::vector<std::string>());
}

TEST_F(AnimatedObject, FullDataComeBackByteForByte)
{
    const std::string data = "<Object.Data External.File.Type=\"FBX\"><Instance.Data/>"
                             "<External.File>walk.fbx</External.File><Index>3</Index>" +
                             kMatrix + "<Takes>" + take("a") + take("b", "Predefined") +
                             "</Takes></Object.Data>";
    read(data);
    EXPECT_EQ(object()->getExternalFileType(), 1);
    EXPECT_STREQ(object()->getExternalFile(), "walk.fbx");
    EXPECT_EQ(object()->getIndex(), 3);
    EXPECT_EQ(object()->getInitialMatrix()[1], 2.0);
    ASSERT_EQ(nbTakes(), 2);
    EXPECT_STREQ(object()->getTakes()->getZelObject(0)->getName(), "a");
    EXPECT_EQ(object()->getTakes()->getZelObject(0)->getType(), 1);
    EXPECT_EQ(object()->getTakes()->getZelObject(1)->getType(), 0);
    EXPECT_EQ(saved(), data);
    EXPECT_EQ(saved(), data) << "and again";
}

TEST_F(AnimatedObject, WithoutTakesThereAreNone)
{
    read("<Object.Data External.File.Type=\"FBX\"><Index>3</Index></Object.Data>");
    EXPECT_EQ(nbTakes(), 0);
    EXPECT_EQ(object()->getIndex(), 3);
    EXPECT_EQ(mDocument.takeMessages(), std::vector<std::string>());
}

TEST_F(AnimatedObject, TheFirstMissingItemEndsTheReading)
{
    const std::string takes = "<Takes>" + take("a") + "</Takes>";
    struct {
        std::string data;
        std::int32_t type, index;
        double corner;
        std::int32_t nbTakes;
    } cases[] = {
        {"<Object.Data><Index>3</Index>" + kMatrix + takes + "</Object.Data>", 0, 0, 1.0, 0},
        {"<Object.Data External.File.Type=\"bad\"><Index>3</Index></Object.Data>", 0, 0, 1.0, 0},
        {"<Object.Data External.File.Type=\"FBX\">" + kMatrix + takes + "</Object.Data>", 1, 0, 1.0,
         0},
        {"<Object.Data External.File.Type=\"FBX\"><Index>3</Index>" + takes + "</Object.Data>", 1,
         3, 1.0, 1},
        {"<Object.Data External.File.Type=\"FBX\"><Index>3</Index><Initial.Matrix/>" + takes +
             "</Object.Data>",
         1, 3, 1.0, 0},
        {"<Object.Data External.File.Type=\"FBX\"><Index>3</Index>" + kMatrix + takes +
             "</Object.Data>",
         1, 3, 16.0, 1},
    };
    for (const auto& each : cases) {
        read(each.data);
        EXPECT_EQ(object()->getExternalFileType(), each.type) << each.data;
        EXPECT_EQ(object()->getIndex(), each.index) << each.data;
        EXPECT_EQ(object()->getInitialMatrix()[15], each.corner) << each.data;
        EXPECT_EQ(nbTakes(), each.nbTakes) << each.data;
    }
}

TEST_F(AnimatedObject, ATakeThatFailsIsTheLast)
{
    read("<Object.Data External.File.Type=\"FBX\"><Index>3</Index><Takes>" + take("a") + take("b") +
         "<Take><Duration>7</Duration><FPS>8</FPS></Take>" + take("d") + "</Takes></Object.Data>");
    ASSERT_EQ(nbTakes(), 3);
    const IZelAnimatedObject::IZelTake* third = object()->getTakes()->getZelObject(2);
    EXPECT_EQ(third->getDuration(), 7);
    EXPECT_EQ(third->getFPS(), 8);
    EXPECT_STREQ(third->getName(), "");
}

TEST_F(AnimatedObject, TheExternalFileIsInTheObjectDataAtOnce)
{
    mDefinition->setClass("AnimatedObject");
    object()->setExternalFile("run.fbx");
    EXPECT_STREQ(CZelXMLGet(mDefinition->getObjectData()).GetText("External.File"), "run.fbx");
    object()->setExternalFile(nullptr);
    EXPECT_STREQ(object()->getExternalFile(), "");
    EXPECT_TRUE(CZelXMLGet(mDefinition->getObjectData()).IsElement("External.File"));
}

TEST_F(AnimatedObject, SettersStoreWhatTheyAreGiven)
{
    mDefinition->setClass("AnimatedObject");
    object()->setIndex(-7);
    object()->setInitialMatrix(nullptr);
    EXPECT_EQ(object()->getInitialMatrix()[0], 1.0);
    const double matrix[16] = {9};
    object()->setInitialMatrix(matrix);
    EXPECT_EQ(object()->getInitialMatrix()[0], 9.0);
    EXPECT_EQ(object()->getIndex(), -7);
    object()->setExternalFileType(2);
    EXPECT_EQ(messageOf([&] { mDefinition->prepareForWrite(); }),
              "No label for the value (2) [Skeleton..FBX]");
}
