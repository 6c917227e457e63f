#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CMeshCheck.h"
#include "tools/CShapeCheck.h"
#include "tools/forEach.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

namespace tool {

namespace {

struct CMesh {
    std::string owner;
    OvZel::TZelObjectMgr<OvZel::CZelPoint>& points;
    OvZel::TZelObjectMgr<OvZel::IZelPolygon>& polygons;
    std::int32_t nbMaterials;
};

} // namespace

static void add(CFindings& findings, const char* code, const CMesh& mesh, const std::string& what,
                const CMeshCheck::CCount& count)
{
    if (count.count > 0)
        findings.add(code, mesh.owner + ": " + what + ": " + count.text());
}

static void checkMesh(const CMesh& mesh, CFindings& findings)
{
    CMeshCheck corners(mesh.points.getNbObjects());
    CShapeCheck shapes(mesh.points, mesh.nbMaterials);
    forEach(mesh.polygons, [&](OvZel::IZelPolygon& polygon, std::int32_t i) {
        corners.addPolygon(polygon, i);
        shapes.addPolygon(polygon, i);
    });
    add(findings, "W101", mesh, "corners at points that the mesh does not have",
        corners.badCorners());
    add(findings, "W106", mesh, "loops with fewer than three corners", corners.shortLoops());
    add(findings, "W110", mesh,
        "polygons of materials beyond the " + std::to_string(mesh.nbMaterials) + " of the owner",
        shapes.withoutMaterial());
    add(findings, "W122", mesh, "polygons without area or with a corner twice in a row",
        shapes.degenerate());
}

void checkMeshes(OvZel::IZelMgr& document, CFindings& findings)
{
    checkMesh({"the document's mesh", *document.getPoints(), *document.getPolygons(),
               document.getProperties()->getNbObjects()},
              findings);
    forEach(*document.getDefinitions(), [&](OvZel::IZelZelObjectDefinition& each, std::int32_t) {
        checkMesh({"definition " + idText(*each.getBasicData()->getId()), *each.getPoints(),
                   *each.getPolygons(), each.getProperties()->getNbObjects()},
                  findings);
    });
}

} // namespace tool
