#include "environment/CZelForeground.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');
const std::string kId = "0123456789ABCDEF0123456789ABCDEF";

std::string foregroundText(const std::string& attributes, const std::string& child)
{
    return "<E><Foregroung" + attributes +
           "><URL/><Position.X>0</Position.X><Position.Y>0</Position.Y>" + child +
           "</Foregroung></E>";
}

} // namespace

TEST(ForegroundXml, FileForm)
{
    const std::vector<CRow> rows = {
        text("URL", "tree.png", ""),
        real("Position.X", 1.5, 0.0),
        real("Position.Y", 2.5, 0.0),
        optional(real("Size.X", 3.5, 1.0)),
        optional(real("Size.Y", 4.5, 1.0)),
        // Written always, read never without a child of its name; see below.
        absentGives(attribute("Id", kNullId, kNullId), kNullId),
        optional(real("Intensity", 5.5, 0.5)),
        flag("Keep.Proportions", true),
    };
    checkElement<CZelForeground>("Foregroung", rows);
}

TEST(ForegroundXml, TheIdentifierIsWrittenButNotTakenBack)
{
    CTestDocument document;
    CZelForeground foreground(document.ref());
    foreground.setImageId(CZelUUID(kId.c_str()));
    CTestElement file;
    OrvaneXML::XIXMLElement* written = foreground.putInXML(file.element());
    ASSERT_NE(written, nullptr);
    EXPECT_EQ(written->FindAttribute(written->MakeKey("Id"))->GetValue(), kId);
    EXPECT_EQ(written->FindElement(written->MakeKey("Id")), nullptr);

    CZelForeground loaded(document.ref());
    EXPECT_TRUE(loaded.initWithXML(file.element(), true));
    EXPECT_TRUE(loaded.getImageId().isNull());
    EXPECT_TRUE(foreground.initWithXML(file.element(), true));
    EXPECT_EQ(foreground.getImageId(), CZelUUID(kId.c_str())) << "left as it is";
}

TEST(ForegroundXml, AChildMakesTheAttributeCount)
{
    struct {
        std::string attributes, child;
        bool result;
        std::string id;
    } const cases[] = {
        {" Id=\"" + kId + "\"", "<Id/>", true, kId},
        {" Id=\"" + kId + "\"", "", true, kNullId},
        {"", "<Id/>", false, kNullId},
    };
    for (const auto& [attributes, child, result, id] : cases) {
        SCOPED_TRACE(attributes + child);
        CTestDocument document;
        CZelForeground foreground(document.ref());
        const CTestElement source(foregroundText(attributes, child));
        EXPECT_EQ(foreground.initWithXML(source.element(), false), result);
        EXPECT_EQ(foreground.getImageId(), CZelUUID(id.c_str()));
        const std::vector<std::string> failure = {
            "Exception in CZelXML::initWithXML : CZelXMLGet::GetUUID - NULL ptr for tag Id"};
        EXPECT_EQ(document.takeMessages(), result ? std::vector<std::string>() : failure);
    }
}

TEST(Foreground, EveryValueIsStoredAsItComes)
{
    using I = IZelForeground;
    CZelForeground object(nullptr);
    ZelTest::expectAccessors<I>(object,
                                {ACCESS(I, URL, "tree.png"), ACCESS(I, PositionX, -1.0),
                                 ACCESS(I, PositionY, -2.0), ACCESS(I, SizeX, -3.0),
                                 ACCESS(I, SizeY, -4.0), ACCESS(I, ImageId, CZelUUID(kId.c_str())),
                                 ACCESS(I, Intensity, -5.0), ACCESS(I, KeepProportions, false)});
}
