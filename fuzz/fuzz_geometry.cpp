#include "fuzz/check.h"
#include "geometry/CGeometryBlockReader.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "geometry/CZELGeoReader.h"
#include "tests/support/CGeometrySection.h"
#include "tests/support/COwnStorage.h"
#include "tests/support/CXMLTextSource.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

using namespace OvZel;
using ZelTest::CGeometrySection;
using ZelTest::COwnStorage;
using ZelTest::CTestBlockHost;
using ZelTest::CXMLTextSource;

namespace {

/// A mesh as a document keeps it.
struct CMesh {
    TZelComPtr<CZELGeoReader::CPoints> points{new CZELGeoReader::CPoints(nullptr)};
    TZelComPtr<CZELGeoReader::CPolygons> polygons{new CZELGeoReader::CPolygons(nullptr)};

    void read(bool isPoints, const std::string& text, std::size_t step)
    {
        CTestBlockHost host;
        CXMLTextSource stream(text, step);
        OrvaneXML::CXMLBufferedReader in(&stream);
        CZELGeoReader storage(host.blockMgrRef(), *points, *polygons);
        CGeometryBlockReader reader(host, in, storage);
        isPoints ? reader.readPoints() : reader.readPolygons();
    }

    template <class Provider>
    std::string written(const char* name)
    {
        CGeometrySection<Provider> section(name);
        COwnStorage storage(section.host, *points, *polygons);
        section.host.storage = &storage;
        check(section.write());
        return section.text();
    }

    std::string written(bool isPoints)
    {
        return isPoints ? written<CPointsProvider>("Points")
                        : written<CPolygonsProvider>("Polygons");
    }
};

/// A number survives but for its seventh decimal, its sixteenth digit and what lies beyond 1e30.
bool isClose(double a, double b)
{
    a = std::clamp(a, -1e30, 1e30);
    b = std::clamp(b, -1e30, 1e30);
    return std::fabs(a - b) <= 1.1e-6 + 1e-14 * std::fabs(a);
}

bool isClose(float a, float b)
{
    return isClose(double{a}, double{b}) || std::fabs(a / b - 1.0F) < 1e-6F;
}

void compareLoops(std::span<const CZelVertex> a, std::span<const CZelVertex> b)
{
    const auto isSame = [](const CZelVertex& left, const CZelVertex& right) {
        return left.pointIndex == right.pointIndex && left.flags == right.flags &&
               isClose(left.u, right.u) && isClose(left.v, right.v);
    };
    check(std::equal(a.begin(), a.end(), b.begin(), b.end(), isSame));
}

void comparePolygons(const CPolygon& a, const CPolygon& b)
{
    check(a.getMaterial() == b.getMaterial() && a.nbHoles() == b.nbHoles());
    check(a.isSmooth() == b.isSmooth());
    compareLoops(a.vertices().records(), b.vertices().records());
    for (std::int32_t i = 0; i < a.nbHoles(); ++i)
        compareLoops(a.hole(i).vertices().records(), b.hole(i).vertices().records());
}

void compare(const CMesh& a, const CMesh& b)
{
    check(a.points->size() == b.points->size() && a.polygons->size() == b.polygons->size());
    for (std::int32_t i = 0; i < a.points->size(); ++i) {
        const CZelPoint left = a.points->data()[i];
        const CZelPoint right = b.points->data()[i];
        check(isClose(left.x, right.x) && isClose(left.y, right.y) && isClose(left.z, right.z));
    }
    for (std::int32_t i = 0; i < a.polygons->size(); ++i)
        comparePolygons(*a.polygons->at(i), *b.polygons->at(i));
}

/// False when the text is no block. The step width makes no difference to it.
bool readBoth(CMesh& whole, CMesh& steps, bool isPoints, const std::string& text)
{
    bool good[2] = {true, true};
    try {
        whole.read(isPoints, text, CXMLTextSource::kWhole);
    } catch (const std::runtime_error&) {
        good[0] = false;
    }
    try {
        steps.read(isPoints, text, 7);
    } catch (const std::runtime_error&) {
        good[1] = false;
    }
    check(good[0] == good[1]);
    return good[0];
}

} // namespace

/// The first byte picks points or polygons, the rest is the block.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const bool isPoints = data[0] % 2 == 0;
    const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
    CMesh first, steps, second;
    const bool isGood = readBoth(first, steps, isPoints, text);
    compare(first, steps);
    if (!isGood)
        return 0;
    second.read(isPoints, first.written(isPoints), CXMLTextSource::kWhole);
    compare(first, second);
    return 0;
}
