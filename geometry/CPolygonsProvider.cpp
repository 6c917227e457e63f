#include "geometry/CPolygonsProvider.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "geometry/CFastWriter.h"
#include "geometry/CPacer.h"
#include "geometry/CZELGeoWriter.h"
#include "geometry/geometryWriter.h"
#include "xml/IBlockHost.h"

#include <algorithm>
#include <stdexcept>

namespace OvZel {

namespace {

using CPen = CFastWriter::CPen;

void putVertex(CPen& pen, const CZelVertex& vertex)
{
    if ((vertex.flags & CZelVertex::kFlagI) != 0)
        pen.text("I ");
    if ((vertex.flags & CZelVertex::kFlagM) != 0) {
        pen.text("M ");
        pen.real(vertex.u);
        pen.real(vertex.v);
    }
    pen.integer(vertex.pointIndex);
}

void writeLoop(CFastWriter& out, std::span<const CZelVertex> vertices)
{
    constexpr std::size_t kAtATime = 64;
    constexpr std::size_t kVertex = 4 * CFastWriter::kLongest;
    CPen pen = out.pen(CFastWriter::kLongest);
    pen.integer(static_cast<std::int32_t>(vertices.size()));
    out.done(pen);
    while (!vertices.empty()) {
        const std::size_t count = std::min(vertices.size(), kAtATime);
        pen = out.pen(count * kVertex);
        for (const CZelVertex& vertex : vertices.first(count))
            putVertex(pen, vertex);
        out.done(pen);
        vertices = vertices.subspan(count);
    }
}

void writePolygon(CFastWriter& out, const CPolygonView& polygon, CZelMgrRef& mgrRef)
{
    if (polygon.nbLoops() > 1 && polygon.isSmooth())
        mgrRef.warning("Holed polygon smoothed (smoothing will be loss)");
    const std::int32_t loops = polygon.nbLoops();
    const bool isSmooth = polygon.isSmooth();
    CPen pen = out.pen(3 * CFastWriter::kLongest);
    pen.text(loops > 1 ? "h\t" : isSmooth ? "o\t" : "p\t");
    pen.integer(polygon.getMaterial());
    if (loops > 1)
        pen.integer(loops);
    out.done(pen);
    for (std::int32_t i = 0; i < loops; ++i)
        writeLoop(out, polygon.loop(i));
    pen = out.pen(1);
    pen.text("\n");
    out.done(pen);
}

void writePolygons(IBlockHost& host, IZelExtStorageWriter::IWriter& storage, std::int32_t count,
                   CFastWriter& out)
{
    CZelMgrRef& mgrRef = *CZelMgrRef::from(&host.blockMgrRef());
    const auto* own = dynamic_cast<const CZELGeoWriter*>(&storage);
    const TZelComPtr<CZELGeoWriter::CPolygons> owner(new CZELGeoWriter::CPolygons(&mgrRef));
    CPolygon* scratch = owner->append();
    OvThrow::IfNULL(scratch);
    CPacer pacer(host, CPacer::kSpan, count);
    std::int32_t i = 0;
    for (; i < count; ++i) {
        std::optional<CPolygonView> polygon;
        if (own != nullptr)
            polygon = own->polygonAt(i);
        if (!polygon) {
            scratch->clear();
            if (!storage.getPolygon(scratch, i))
                throw std::runtime_error("CPolygonsProvider::Write2 - External storage cancel IO");
            polygon.emplace(*scratch);
        }
        writePolygon(out, *polygon, mgrRef);
        pacer.step(i);
    }
    pacer.step(i);
}

} // namespace

OrvaneXML::XIXMLData::IXMLCData* CPolygonsProvider::Clone2()
{
    return new CPolygonsProvider(host());
}

bool CPolygonsProvider::Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData* node)
{
    const auto storage = geometryWriter(*host(), node, "CPolygonsProvider::Write2 - NULL UUID");
    if (!storage)
        throw std::runtime_error("CPolygonsProvider::Write2 - Current writter is NULL");
    const std::int32_t count = storage->getNbPolygons();
    if (count < 0)
        throw std::runtime_error("CPolygonsProvider::Write2 - External storage return -1");
    CFastWriter out(*stream);
    CPen pen = out.pen(CFastWriter::kLongest);
    pen.text("\n");
    pen.integer(count);
    pen.text("\n");
    out.done(pen);
    writePolygons(*host(), *storage, count, out);
    out.flush();
    return true;
}

} // namespace OvZel
