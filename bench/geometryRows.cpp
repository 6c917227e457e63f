// The packed blocks of a mesh, by stream and document, against loops over the number routines.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/streams.h"

#include <memory>

namespace ZelBench {

namespace {

using CReadMesh = void (*)(std::string_view, SFlatMesh&);

/// A side that reads less would be fast.
void checkSame(const std::string& file, std::string_view block, CReadMesh readAnchor)
{
    SFlatMesh mesh;
    readAnchor(block, mesh);
    const CDocument document = CDocument::from(CTextSource(file));
    const auto nbPoints = static_cast<std::size_t>(document->getPoints()->getNbObjects());
    const auto nbPolygons = static_cast<std::size_t>(document->getPolygons()->getNbObjects());
    if (nbPoints != mesh.points.size() || nbPolygons != mesh.polygons.size())
        throw std::runtime_error("The document and the anchor read different meshes");
}

SPair readPair(std::string sections, const char* element, CReadMesh readAnchor)
{
    const auto file = std::make_shared<std::string>(zelFile(sections));
    const std::string_view block = sectionText(*file, element);
    checkSame(*file, block, readAnchor);
    return {[block, readAnchor] {
                return secondsOf([&] {
                    SFlatMesh mesh;
                    readAnchor(block, mesh);
                    return mesh;
                });
            },
            [file] { return secondsOf([&] { return CDocument::from(CTextSource(*file)); }); }};
}

using CWriteMesh = void (*)(const SFlatMesh&, const CFlush&);

SPair writePair(SFlatMesh mesh, const std::string& sections, CWriteMesh writeAnchor)
{
    const auto plain = std::make_shared<SFlatMesh>(std::move(mesh));
    const std::string file = zelFile(sections);
    const auto document = std::make_shared<CDocument>(CDocument::from(CTextSource(file)));
    return {[plain, writeAnchor] {
                return secondsOf([&] {
                    std::size_t nbBytes = 0;
                    writeAnchor(*plain, [&](const char*, std::size_t count) { nbBytes += count; });
                    return nbBytes;
                });
            },
            [document] {
                return secondsOf([&] {
                    document->write(CNullTarget());
                    return 0;
                });
            }};
}

const CRow kPointsRead("points_read", [] {
    return readPair(pointsSection(terrain()), "Points", readPointsFastFloat);
});
const CRow kPolygonsRead("polygons_read", [] {
    return readPair(polygonsSection(terrain()), "Polygons", readPolygons);
});
const CRow kHolesRead("holes_read", [] {
    return readPair(polygonsSection(perforated()), "Polygons", readPolygons);
});
const CRow kPointsWrite("points_write", [] {
    SFlatMesh mesh = terrain();
    const std::string sections = pointsSection(mesh);
    return writePair(std::move(mesh), sections, writePoints);
});
const CRow kPolygonsWrite("polygons_write", [] {
    SFlatMesh mesh = terrain();
    const std::string sections = polygonsSection(mesh);
    return writePair(std::move(mesh), sections, writePolygons);
});

} // namespace

} // namespace ZelBench
