// The same mesh as a document and as an OBJ file.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/streams.h"

#include <cstdio>
#include <memory>
#include <tiny_obj_loader.h>

namespace ZelBench {

namespace {

struct SObj {
    tinyobj::attrib_t attributes;
    std::vector<tinyobj::shape_t> shapes;
    std::vector<tinyobj::material_t> materials;
};

std::string objFace(const SFlatMesh& mesh, std::size_t polygon, std::size_t& nbMapped)
{
    std::string face = "f";
    for (std::size_t i = 4 * polygon; i < 4 * polygon + 4; ++i) {
        face += ' ' + std::to_string(mesh.vertices[i].pointIndex + 1);
        if (mesh.vertices[i].flags != 0)
            face += '/' + std::to_string(++nbMapped);
    }
    return face + '\n';
}

std::string objText(const SFlatMesh& mesh)
{
    std::string text;
    char line[100];
    for (const OvZel::CZelPoint& point : mesh.points)
        text.append(line, static_cast<std::size_t>(std::snprintf(
                              line, sizeof line, "v %.6f %.6f %.6f\n", point.x, point.y, point.z)));
    for (const OvZel::CZelVertex& vertex : mesh.vertices)
        if (vertex.flags != 0)
            text.append(line, static_cast<std::size_t>(std::snprintf(
                                  line, sizeof line, "vt %.6f %.6f\n",
                                  static_cast<double>(vertex.u), static_cast<double>(vertex.v))));
    std::size_t nbMapped = 0;
    for (std::size_t i = 0; i < mesh.polygons.size(); ++i)
        text += objFace(mesh, i, nbMapped);
    return text;
}

std::unique_ptr<SObj> loadObj(const std::string& path)
{
    auto obj = std::make_unique<SObj>();
    std::string warning, error;
    if (!tinyobj::LoadObj(&obj->attributes, &obj->shapes, &obj->materials, &warning, &error,
                          path.c_str(), nullptr, false))
        throw std::runtime_error(error);
    return obj;
}

const CRow kGeometryFile("geometry_file", [] {
    const std::string obj = fileWith("terrain.obj", objText(terrain()));
    const std::string own = terrainFile();
    return SPair{[obj] { return secondsOf([&] { return loadObj(obj); }); },
                 [own] { return secondsOf([&] { return CDocument::from(CFileSource(own)); }); }};
});

} // namespace

} // namespace ZelBench
