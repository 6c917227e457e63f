#include "animation/CZelSequence.h"
#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/viewParts.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');
const std::string kMadeId = "11112222333344445555666677778888";
const std::string kFileId = "000102030405060708090A0B0C0D0E0F";

std::vector<CRow> sequenceRows()
{
    return {
        required(attribute("UUID", kFileId, kMadeId),
                 "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        integer("Start.Frame", -1, 0),
        integer("End.Frame", 9, 250),
        required(raw("Name", R"(<Name en="Walk"/>)", R"(<Name en=""/>)"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        integer("View.Flags", -3, 2),
        real("Focal", 70.5, 50.0),
        xyz("Position", {1, 2, 3}, {50, 50, -60}),
        required(alsoReads(oneOf(attribute("Target.Type", "Object.Instance", "Fixed.Vertex"),
                                 {"Fixed.Vertex", "Forward.Path", "Object.Instance"}),
                           "Relative.Angle", "Forward.Path"),
                 "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Target.Type"),
        optional(real("Target.Distance", 1.5, 100.0)),
        optional(real("Horizontal.Angle", 2.5, 0.0)),
        optional(real("Vertical.Angle", 3.5, 0.0)),
        optional(xyz("Current.Path.Tangent", {1, 0, 0}, {0, 0, 1})),
        xyz("Target", {4, 5, 6}, {50, 50, 50}),
        real("Roll", 100.5, 0.00001), // not wrapped
        attribute("Object.UUID", "202122232425262728292A2B2C2D2E2F", kNullId),
        flag("Architect.Flag", false),
        viewInfoRow(),
        optionsRow(),
    };
}

/// A sequence element with what is required.
std::string sequenceFile(const std::string& targetType, const std::string& focal,
                         const std::string& tangent = "")
{
    return "<E><Sequence UUID=\"" + kFileId + "\" Target.Type=\"" + targetType +
           R"("><Start.Frame>1</Start.Frame><End.Frame>2</End.Frame><Name en="N"/>)" +
           "<View.Flags>1</View.Flags><Focal>" + focal + "</Focal><Position/>" + tangent +
           "<Target/><Roll>1</Roll>" + viewInfoRow().fresh + optionsRow().fresh + "</Sequence></E>";
}

std::string read(CTestDocument& document, CZelSequence& sequence, const std::string& file)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { sequence.getXML(io, source.element()); });
}

} // namespace

TEST(SequenceXml, FileForm)
{
    checkElement("Sequence", sequenceRows(), [](CTestDocument& document) {
        TZelComPtr sequence = newView<CZelSequence>()(document);
        const CZelUUID id(kMadeId.c_str());
        sequence->setId(&id);
        return sequence;
    });
}

TEST(SequenceXml, TheIdentifierIsThatOfTheFileInAnyCase)
{
    for (const bool getUUID : {true, false}) {
        CTestDocument document;
        const TZelComPtr sequence(new CZelSequence(document.ref()));
        const CTestElement file(sequenceFile("Fixed.Vertex", "50"));
        EXPECT_TRUE(sequence->initWithXML(file.element(), getUUID));
        EXPECT_EQ(*sequence->getId(), CZelUUID(kFileId.c_str()));
    }
}

TEST(SequenceXml, TwoNamesStandForOneTargetType)
{
    for (const char* label : {"Forward.Path", "Relative.Angle"}) {
        CTestDocument document;
        const TZelComPtr sequence(new CZelSequence(document.ref()));
        ASSERT_EQ(read(document, *sequence, sequenceFile(label, "50")), "no exception");
        EXPECT_EQ(sequence->getTargetType(), 2);
        const CTestElement target;
        ASSERT_NE(sequence->putInXML(target.element()), nullptr);
        EXPECT_NE(target.text().find("Target.Type=\"Forward.Path\""), std::string::npos);
    }
}

TEST(SequenceXml, ATargetTypeWithoutANameFails)
{
    CTestDocument document;
    const TZelComPtr sequence(new CZelSequence(document.ref()));
    sequence->setTargetType(1);
    const CTestElement target;
    CZelXMLIO io(document.ref(), true);
    EXPECT_EQ(messageOf([&] { sequence->addXML(io, target.element()); }),
              "No label for the value (1) [Fixed.Vertex..Object.Instance]");
    EXPECT_EQ(read(document, *sequence, sequenceFile("Moon", "50")),
              "Invalid label (Moon) [Fixed.Vertex..Object.Instance]");
}

TEST(SequenceXml, TheFocalOfAFileIsTreatedAsThatOfAClient)
{
    CTestDocument document;
    const TZelComPtr sequence(new CZelSequence(document.ref()));
    ASSERT_EQ(read(document, *sequence, sequenceFile("Fixed.Vertex", "200")), "no exception");
    EXPECT_EQ(sequence->getFocal(), 180.0);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Method setFocal has clipped a value out of range."});
}

TEST(SequenceXml, PointsAndTheTangentPassThroughTheReadTransform)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 0, 0, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double point[3] = {0, 0, 0}, tangent[3] = {1, 0, 1};
    document.ref()->transformPoint(point);
    document.ref()->transformNormal(tangent);
    ASSERT_NE(point[0], 0.0);
    ASSERT_NE(tangent[0], 1.0);
    const TZelComPtr sequence(new CZelSequence(document.ref()));
    // Without its "Z" a direction points along it.
    ASSERT_EQ(read(document, *sequence,
                   sequenceFile("Fixed.Vertex", "50", "<Current.Path.Tangent X=\"1\"/>")),
              "no exception");
    EXPECT_TRUE(isSame(sequence->getPosition(), CZelPoint{point[0], point[1], point[2]}));
    EXPECT_TRUE(isSame(sequence->getTarget(), CZelPoint{point[0], point[1], point[2]}));
    EXPECT_TRUE(isSame(sequence->getPathTangent(), CZelPoint{tangent[0], tangent[1], tangent[2]}));
}
