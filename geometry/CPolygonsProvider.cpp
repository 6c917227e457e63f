#include "geometry/CPolygonsProvider.h"

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "geometry/CFastWriter.h"
#include "geometry/CPacer.h"
#include "geometry/CZELGeoWriter.h"
#include "geometry/geometryWriter.h"
#include "xml/IBlockHost.h"

#include <stdexcept>

namespace OvZel {

namespace {

void writeLoop(CFastWriter& out, std::span<const CZelVertex> vertices)
{
    out.writeInteger(static_cast<std::int32_t>(vertices.size()));
    for (const CZelVertex& vertex : vertices) {
        if ((vertex.flags & CZelVertex::kFlagI) != 0)
            out.writeText("I ");
        if ((vertex.flags & CZelVertex::kFlagM) != 0) {
            out.writeText("M ");
            out.writeDouble(vertex.u);
            out.writeDouble(vertex.v);
        }
        out.writeInteger(vertex.pointIndex);
    }
}

void writePolygon(CFastWriter& out, const CPolygonView& polygon, CZelMgrRef& mgrRef)
{
    const std::int32_t holes = polygon.nbLoops() - 1;
    if (holes > 0 && polygon.isSmooth())
        mgrRef.warning("Holed polygon smoothed (smoothing will be loss)");
    out.writeText(holes > 0 ? "h\t" : polygon.isSmooth() ? "o\t" : "p\t");
    out.writeInteger(polygon.getMaterial());
    if (holes > 0)
        out.writeInteger(holes + 1);
    for (std::int32_t i = 0; i < polygon.nbLoops(); ++i)
        writeLoop(out, polygon.loop(i));
    out.writeText("\n");
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
    out.writeText("\n");
    out.writeUnsigned(static_cast<std::uint32_t>(count));
    out.writeText("\n");
    writePolygons(*host(), *storage, count, out);
    out.flush();
    return true;
}

} // namespace OvZel
