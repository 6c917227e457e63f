#include "objects/CZelBBMgrData.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNone = "no exception";

CRow corner(const char* name, const char* number)
{
    const std::string value = std::string(number) + ".000000";
    return raw(name, "",
               "<" + std::string(name) + " X=\"" + value + "\" Y=\"0.000000\" Z=\"0.000000\"/>");
}

std::vector<CRow> textureRows()
{
    CRow cutOut1 = optional(color("CutOut1", {1, 2, 3}, {0, 0, 0}));
    CRow cutOut2 = optional(color("CutOut2", {4, 5, 6}, {0, 0, 0}));
    cutOut1.fresh = cutOut1.absent = cutOut2.fresh = cutOut2.absent = "";
    return {text("URL", "tree.png", ""),
            xyz("Origin", {1, 2, 3}, {0, 0, 0}),
            xyz("X.Axis", {4, 5, 6}, {0, 0, 1}),
            xyz("Y.Axis", {7, 8, 9}, {0, 0, 1}),
            real("Width", 2.5, 0.0),
            real("Height", 3.5, 0.0),
            cutOut1,
            cutOut2,
            flag("CutSet", false)};
}

std::vector<CRow> infoRows()
{
    const CRow kind = required(
        oneOf(attribute("Kind", "Multifaces", "Uniface"), {"Flat", "Uniface", "Multifaces"}),
        "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Kind");
    return {raw("Names", "<Names en=\"Tree\" de=\"Baum\"/>", "<Names/>"),
            part("Behavior", {kind, integer("NbFaces", 6, 0), flag("Animate", false),
                              real("Scale", 2.5, 1.0), xyz("Normal", {1, 2, 3}, {0, 1, 0})})};
}

/// The text that an entry writes with the one name or the like that `change` made.
template <class Change>
std::string writtenAfter(Change&& change)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    change(data);
    const CTestElement target;
    CZelXMLIO io(document.ref(), true);
    data.addXML(io, target.element());
    return target.text();
}

/// Reads the entry in which `from` is replaced by `to`; the text of the failure.
std::string readChanged(CZelBBMgrData& data, CTestDocument& document, const std::string& from,
                        const std::string& to)
{
    std::string xml = writtenAfter([](CZelBBMgrData& fresh) { fresh.getQuads()->append(); });
    const std::size_t place = xml.find(from);
    EXPECT_NE(place, std::string::npos) << from;
    xml.replace(place, from.size(), to);
    const CTestElement source(xml);
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { data.getXML(io, source.element()); });
}

} // namespace

TEST(TextureXml, FileForm)
{
    checkElement("Texture", textureRows(),
                 [](CTestDocument&) { return std::make_unique<CZelTexture>(); });
}

TEST(Texture, EveryValueIsStoredAsItComes)
{
    CZelTexture texture;
    expectAccessors<IZelTexture>(
        texture,
        {ACCESS(IZelTexture, URL, "a"), ACCESS(IZelTexture, Origin, (CZelPoint{1, 2, 3})),
         ACCESS(IZelTexture, XAxis, (CZelPoint{4, 5, 6})),
         ACCESS(IZelTexture, YAxis, (CZelPoint{7, 8, 9})), ACCESS(IZelTexture, Width, -1.0),
         ACCESS(IZelTexture, Height, -2.0), ACCESS(IZelTexture, CutOut1Used, true),
         ACCESS(IZelTexture, CutOut1, CZelColor::rgb(1, 2, 3)),
         ACCESS(IZelTexture, CutOut2Used, true),
         ACCESS(IZelTexture, CutOut2, CZelColor::rgb(4, 5, 6)), ACCESS(IZelTexture, CutSet, true)});
    texture.setURL(nullptr);
    EXPECT_STREQ(texture.getURL(), "");
}

TEST(BillboardXml, FileForm)
{
    checkElement("Bb.Info", infoRows(), [](CTestDocument& document) {
        return std::make_unique<CZelBillboard>(document.ref());
    });
}

TEST(Billboard, EveryValueIsStoredAsItComes)
{
    CZelBillboard billboard(nullptr);
    expectAccessors<IZelBillboard>(
        billboard, {ACCESS(IZelBillboard, Kind, 77), ACCESS(IZelBillboard, NbFaces, -3),
                    ACCESS(IZelBillboard, Animate, true), ACCESS(IZelBillboard, Scale, -2.0),
                    ACCESS(IZelBillboard, Normal, (CZelPoint{1, 2, 3}))});
}

TEST(Billboard, ANewNameIsEnglishAndEmpty)
{
    CZelBillboard billboard(nullptr);
    IZelBillboard::IZelBBName* name = billboard.getNames()->newZelObject(-1);
    EXPECT_EQ(name->getLanguage(), 0x656EU);
    EXPECT_STREQ(name->getText(), "");
    name->setText(nullptr);
    EXPECT_STREQ(name->getText(), "");
    EXPECT_EQ(*billboard.getNames()->getObjectIID(), IZelBillboard::IZelBBName::sIID);
}

TEST(BillboardXml, NamesWithoutTwoLettersAreLeftOutAndTheLaterOfTwoStands)
{
    const auto add = [](CZelBBMgrData& data, std::uint32_t language, const char* text) {
        IZelBillboard::IZelBBName* name = data.getBillboard()->getNames()->newZelObject(-1);
        name->setLanguage(language);
        name->setText(text);
    };
    const std::string xml = writtenAfter([&](CZelBBMgrData& data) {
        add(data, 'f' * 256 + 'r', "un");
        add(data, 'e' * 256 + '1', "no");
        add(data, 0, "no");
        add(data, 'a' * 65536 + 'e' * 256 + 'n', "no");
        add(data, 'd' * 256 + 'e', "eins");
        add(data, 'f' * 256 + 'r', "deux");
    });
    EXPECT_NE(xml.find("<Names fr=\"deux\" de=\"eins\"/>"), std::string::npos) << xml;
}

TEST(BillboardXml, ReadingReplacesNamesAndQuads)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    data.getBillboard()->getNames()->append();
    data.getQuads()->append();
    data.getQuads()->append();
    EXPECT_EQ(readChanged(data, document, "<Names/>", "<Names fr=\"un\" x=\"\"/>"), kNone);
    ASSERT_EQ(data.getBillboard()->getNames()->size(), 2);
    EXPECT_EQ(data.getBillboard()->getNames()->at(0)->getLanguage(), 0x6672U);
    EXPECT_STREQ(data.getBillboard()->getNames()->at(0)->getText(), "un");
    EXPECT_EQ(data.getBillboard()->getNames()->at(1)->getLanguage(), 'x' * 256U);
    EXPECT_EQ(data.getQuads()->size(), 1);
    EXPECT_EQ(readChanged(data, document, "<Names/>", ""),
              "CZelXMLGet::GetElement - NULL ptr for tag Names");
    EXPECT_EQ(data.getBillboard()->getNames()->size(), 2) << "those that were there stay";
    EXPECT_EQ(readChanged(data, document, "<Names/>", "<Names/>"), kNone);
    EXPECT_EQ(data.getBillboard()->getNames()->size(), 0);
}

TEST(BillboardXml, ItsKindHasItsOwnLabels)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    EXPECT_EQ(readChanged(data, document, "\"Uniface\"", "\"Multifaces\""), kNone);
    EXPECT_EQ(data.getBillboard()->getKind(), 2);
    EXPECT_EQ(readChanged(data, document, "\"Uniface\"", "\"Flat\""), kNone);
    EXPECT_EQ(data.getBillboard()->getKind(), 0);
    EXPECT_EQ(readChanged(data, document, "\"Uniface\"", "\"Multiface\""),
              "Invalid label (Multiface) [Flat..Multifaces]");
    EXPECT_EQ(messageOf([] {
                  writtenAfter([](CZelBBMgrData& entry) { entry.getBillboard()->setKind(3); });
              }),
              "No label for the value (3) [Flat..Multifaces]");
}

TEST(BillboardXml, TheNormalsThirdCoordinateIsOneWithoutItsAttribute)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    EXPECT_EQ(readChanged(data, document, "<Normal X=\"0.000000\" Y=\"1.000000\" Z=\"0.000000\"/>",
                          "<Normal/>"),
              kNone);
    EXPECT_EQ(data.getBillboard()->getNormal().y, 0.0);
    EXPECT_EQ(data.getBillboard()->getNormal().z, 1.0);
}

TEST(BillboardDataXml, FileForm)
{
    const CRow property = required(attribute("Property", "00C0FFEE", "00000000"),
                                   "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Property");
    const std::string triangle = "<Triangle>" + corner("Pt.0", "1").fresh +
                                 corner("Pt.1", "2").fresh + corner("Pt.2", "3").fresh +
                                 "</Triangle>";
    const CRow quads =
        raw("Quads", "<Quads><Quad>0000002A" + triangle + "</Quad></Quads>", "<Quads/>");
    checkElement<CZelBBMgrData>("Billboard",
                                {part("Mgr.Info", {property, quads}),
                                 part("Texture", textureRows()), part("Bb.Info", infoRows())});
}

TEST(BillboardDataXml, AQuadWritesTheLowHalfOfItsNumber)
{
    const struct {
        std::int64_t given;
        const char* text;
        std::int64_t read;
    } cases[] = {{-1, "FFFFFFFF", -1},
                 {0, "00000000", 0},
                 {0x123456789, "23456789", 0x23456789},
                 {0x80000000, "80000000", -0x80000000LL}};
    for (const auto& [given, digits, read] : cases) {
        const std::string xml = writtenAfter([number = given](CZelBBMgrData& data) {
            data.getQuads()->append()->setQuadId(number);
        });
        EXPECT_NE(xml.find(std::string("<Quad>") + digits + "<Triangle>"), std::string::npos)
            << xml;
        CTestDocument document;
        CZelBBMgrData data(document.ref());
        EXPECT_EQ(readChanged(data, document, "FFFFFFFF", digits), kNone);
        EXPECT_EQ(data.getQuads()->at(0)->getQuadId(), read);
    }
}

TEST(BillboardDataXml, APropertyKeepsItsLowHalf)
{
    const std::string xml =
        writtenAfter([](CZelBBMgrData& data) { data.setProperty(0x1'FFFF'FFFEU); });
    EXPECT_NE(xml.find("Property=\"FFFFFFFE\""), std::string::npos) << xml;
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    EXPECT_EQ(readChanged(data, document, "\"00000000\"", "\"FFFFFFFE\""), kNone);
    EXPECT_EQ(data.getProperty(), 0xFFFFFFFEU) << "no sign";
}

TEST(BillboardDataXml, ABrokenQuadFails)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    EXPECT_EQ(readChanged(data, document, "<Pt.1 ", "<Pt.x "), "CZelXMLGet::CZelXMLGet - NULL ptr");
    EXPECT_EQ(data.getQuads()->size(), 1) << "the one that failed stays";
}

TEST(BillboardDataXml, ReadingGoesThroughTheTransform)
{
    CTestDocument document;
    const double matrix[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    document.ref()->setMatrix(matrix);
    CZelBBMgrData data(document.ref());
    EXPECT_EQ(readChanged(data, document, "<Names/>", "<Names/>"), kNone);
    EXPECT_EQ(data.getTexture()->getOrigin().x, 10.0);
    EXPECT_EQ(data.getTexture()->getXAxis().z, 2.0);
    EXPECT_EQ(data.getTexture()->getYAxis().z, 2.0);
    EXPECT_EQ(data.getBillboard()->getNormal().y, 2.0);
    EXPECT_EQ(data.getQuads()->at(0)->getTriangle()[1], 20.0);
}

TEST(BillboardData, ItsFileFormGoesThroughTheInterface)
{
    CTestDocument document;
    CZelBBMgrData data(document.ref());
    IZelBBMgrData& client = data;
    const CTestElement target;
    OrvaneXML::XIXMLElement* written = client.putInXML(target.element());
    ASSERT_NE(written, nullptr);
    EXPECT_STREQ(written->GetKey(), "Billboard");
    EXPECT_TRUE(client.initWithXML(target.element(), true));
    const CTestElement empty;
    EXPECT_FALSE(client.initWithXML(empty.element(), true));
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXMLRef::initWithXML : "
                                       "CZelXMLGet::GetElement - NULL ptr for tag Billboard"});
}
