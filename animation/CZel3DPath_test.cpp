#include "animation/CZel3DPath.h"

#include "core/TComObjectMgr.h"
#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kMadeId = "11112222333344445555666677778888";
const std::string kFileId = "000102030405060708090A0B0C0D0E0F";
const char* const kXYZ = " X=\"1\" Y=\"2\" Z=\"3\"/>";

std::string readPoint(CTestDocument& document, CZelBezierPoint& point, const std::string& content)
{
    const CTestElement file("<E><Bezier.Point>" + content + "</Bezier.Point></E>");
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { point.getXML(io, file.element()); });
}

std::string readPath(CTestDocument& document, CZel3DPath& path, const std::string& file)
{
    const CTestElement source(file);
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { path.getXML(io, source.element()); });
}

} // namespace

TEST(BezierPoint, ANewOne)
{
    using I = IZelBezierPoint;
    CZelBezierPoint point(nullptr);
    EXPECT_TRUE(isSame(point.getPosition(), CZelPoint{}));
    EXPECT_TRUE(isSame(point.getCPBefore(), CZelPoint{-100, 0, 0}));
    EXPECT_TRUE(isSame(point.getCPAfter(), CZelPoint{100, 0, 0}));
    EXPECT_TRUE(point.getAreLocked());
    expectAccessors<I>(point,
                       {ACCESS(I, Position, (CZelPoint{1, 2, 3})),
                        ACCESS(I, CPBefore, (CZelPoint{4, 5, 6})),
                        ACCESS(I, CPAfter, (CZelPoint{7, 8, 9})), ACCESS(I, AreLocked, false)});
}

TEST(BezierPointXml, FileForm)
{
    // Control points at the origin, since a failed read leaves them there.
    const std::vector<CRow> rows = {
        xyz("Position", {1, 2, 3}, {0, 0, 0}),
        xyz("CPBefore", {4, 5, 6}, {0, 0, 0}),
        xyz("CPAfter", {7, 8, 9}, {0, 0, 0}),
        flag("AreLocked", true),
    };
    checkElement("Bezier.Point", rows, [](CTestDocument& document) {
        auto point = std::make_unique<CZelBezierPoint>(document.ref());
        point->setCPBefore({});
        point->setCPAfter({});
        return point;
    });
}

TEST(BezierPointXml, ANewOneWritesItsControlPoints)
{
    CTestDocument document;
    CZelBezierPoint point(document.ref());
    const CTestElement target;
    CZelXMLIO io(document.ref(), true);
    point.addXML(io, target.element());
    EXPECT_NE(
        target.text().find(R"(<Bezier.Point><Position X="0.000000" Y="0.000000" Z="0.000000"/>)"
                           R"(<CPBefore X="-100.000000" Y="0.000000" Z="0.000000"/>)"
                           R"(<CPAfter X="100.000000" Y="0.000000" Z="0.000000"/>)"
                           R"(<AreLocked/></Bezier.Point>)"),
        std::string::npos)
        << target.text();
}

TEST(BezierPointXml, AVectorIsClearedBeforeItIsRead)
{
    CTestDocument document;
    CZelBezierPoint point(document.ref());
    EXPECT_EQ(readPoint(document, point, "<Position" + std::string(kXYZ)),
              "CZelXMLGet::CZelXMLGet - NULL ptr");
    EXPECT_TRUE(isSame(point.getPosition(), CZelPoint{1, 2, 3}));
    EXPECT_TRUE(isSame(point.getCPBefore(), CZelPoint{}));
    EXPECT_TRUE(isSame(point.getCPAfter(), CZelPoint{100, 0, 0}));
    EXPECT_EQ(readPoint(document, point, "<Position X=\"9\" Y=\"9\"/>"),
              "CZelXMLGet::GetFmtAttribute - NULL ptr for tag Z");
    EXPECT_TRUE(isSame(point.getPosition(), CZelPoint{}));
}

TEST(BezierPointXml, NothingIsTransformed)
{
    const double matrix[16] = {0, -2, 0, 0, 2, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    CTestDocument document;
    document.ref()->setMatrix(matrix);
    double xyz[3] = {1, 2, 3};
    document.ref()->transformVector(xyz);
    ASSERT_NE(xyz[2], 3.0);
    CZelBezierPoint point(document.ref());
    const std::string content =
        "<Position" + std::string(kXYZ) + "<CPBefore" + kXYZ + "<CPAfter" + kXYZ;
    ASSERT_EQ(readPoint(document, point, content), "no exception");
    for (const CZelPoint& each : {point.getPosition(), point.getCPBefore(), point.getCPAfter()})
        EXPECT_TRUE(isSame(each, CZelPoint{1, 2, 3}));
}

TEST(Path3D, ANewOne)
{
    CTestDocument document;
    using CPaths = TComObjectMgr<CZel3DPath, IZel3DPath>;
    const TZelComPtr paths(new CPaths(document.ref()));
    IZel3DPath* path = paths->newZelObject(-1);
    EXPECT_FALSE(path->isClosed());
    EXPECT_FALSE(path->getBasicData()->getId()->isNull());
    EXPECT_STREQ(path->getBasicData()->getName(), "");
    EXPECT_EQ(path->getBezierPoints()->getNbObjects(), 0);
    const IZel3DPath* constant = path;
    EXPECT_EQ(constant->getBezierPoints(), path->getBezierPoints());
    path->setClosed(true);
    EXPECT_TRUE(path->isClosed());
    void* out = nullptr;
    EXPECT_EQ(path->QueryInterface(IZelBasic::sIID, &out), kQueryOk);
    ASSERT_EQ(out, static_cast<IZelBasic*>(path));
    path->Release();
}

TEST(Path3DXml, FileForm)
{
    const std::string zero = R"( X="0.000000" Y="0.000000" Z="0.000000"/>)";
    const std::string point = "<Bezier.Point><Position" + zero + "<CPBefore" + zero + "<CPAfter" +
                              zero + "<AreLocked/></Bezier.Point>";
    const std::vector<CRow> rows = {
        flag("Closed", false),
        required(attribute("UUID", kFileId, kMadeId),
                 "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        optional(
            raw("Bezier.points", elementText("Bezier.points", point + point), "<Bezier.points/>")),
    };
    for (const bool getUUID : {true, false}) { // the identifier is that of the file in any case
        CForm form;
        form.getUUID = getUUID;
        checkElement(
            "Path.3D", rows,
            [](CTestDocument& document) {
                TZelComPtr path(new CZel3DPath(document.ref()));
                const CZelUUID id(kMadeId.c_str());
                path->setId(&id);
                return path;
            },
            form);
    }
}

TEST(Path3DXml, AMissingListEmptiesTheOldOne)
{
    CTestDocument document;
    const TZelComPtr path(new CZel3DPath(document.ref()));
    path->getBezierPoints()->newZelObject(-1);
    EXPECT_EQ(readPath(document, *path, "<E><Path.3D UUID=\"" + kFileId + "\"/></E>"),
              "no exception");
    EXPECT_EQ(path->getBezierPoints()->getNbObjects(), 0);
}
