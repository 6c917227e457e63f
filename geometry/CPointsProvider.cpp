#include "geometry/CPointsProvider.h"

#include "geometry/CFastWriter.h"
#include "geometry/CPacer.h"
#include "geometry/CZELGeoWriter.h"
#include "geometry/geometryWriter.h"
#include "xml/IBlockHost.h"

#include <stdexcept>

namespace OvZel {

namespace {

void writePoints(IBlockHost& host, IZelExtStorageWriter::IWriter& storage, std::int32_t count,
                 CFastWriter& out)
{
    const auto* own = dynamic_cast<const CZELGeoWriter*>(&storage);
    CPacer pacer(host, 0, count);
    std::int32_t i = 0;
    for (; i < count; ++i) {
        CZelPoint buffer;
        const CZelPoint* point = own != nullptr ? own->pointAt(i) : nullptr;
        if (point == nullptr) {
            if (!storage.getPoint(&buffer, i))
                throw std::runtime_error("CPointsProvider::Write2 - External storage cancel IO");
            point = &buffer;
        }
        CFastWriter::CPen pen = out.pen(1 + 3 * CFastWriter::kLongest);
        pen.text("\n");
        pen.point(*point);
        out.done(pen);
        pacer.step(i);
    }
    pacer.step(i);
}

} // namespace

OrvaneXML::XIXMLData::IXMLCData* CPointsProvider::Clone2()
{
    return new CPointsProvider(host());
}

bool CPointsProvider::Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData* node)
{
    const auto storage = geometryWriter(*host(), node, "CPointsProvider::Write2 - NULL UUID");
    if (!storage)
        throw std::runtime_error("CPointsProvider::Write2 - No geometry writer");
    const std::int32_t count = storage->getNbPoints();
    if (count < 0)
        throw std::runtime_error("CPointsProvider::Write2 - External storage return -1");
    CFastWriter out(*stream);
    CFastWriter::CPen pen = out.pen(CFastWriter::kLongest);
    pen.text("\n");
    pen.integer(count);
    out.done(pen);
    writePoints(*host(), *storage, count, out);
    pen = out.pen(1);
    pen.text("\n");
    out.done(pen);
    out.flush();
    return true;
}

} // namespace OvZel
