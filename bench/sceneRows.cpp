// The whole scene, against a plain program that keeps it in flat arrays.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/memoryOf.h"
#include "bench/streams.h"

#include <memory>
#include <pugixml.hpp>

namespace ZelBench {

namespace {

std::shared_ptr<CDocument> loadOwn(const std::string& path)
{
    return std::make_shared<CDocument>(CDocument::from(CFileSource(path)));
}

std::shared_ptr<SFlatMesh> loadPlain(const std::string& path)
{
    pugi::xml_document file;
    if (!file.load_file(path.c_str()))
        throw std::runtime_error("The plain program can't read the scene");
    auto mesh = std::make_shared<SFlatMesh>();
    const pugi::xml_node root = file.child("Zel.File");
    readPoints(root.child_value("Points"), *mesh);
    readPolygons(root.child_value("Polygons"), *mesh);
    return mesh;
}

void addSection(pugi::xml_node root, const char* name, const SFlatMesh& mesh,
                void (*write)(const SFlatMesh&, const CFlush&))
{
    std::string text;
    write(mesh, [&](const char* bytes, std::size_t count) { text.append(bytes, count); });
    root.append_child(name).append_child(pugi::node_cdata).set_value(text.c_str());
}

int savePlain(const SFlatMesh& mesh, const std::string& path)
{
    pugi::xml_document file;
    pugi::xml_node root = file.append_child("Zel.File");
    addSection(root, "Points", mesh, writePoints);
    addSection(root, "Polygons", mesh, writePolygons);
    root.append_child("Working.Window");
    if (!file.save_file(path.c_str()))
        throw std::runtime_error("The plain program can't write the scene");
    return 0;
}

int saveOwn(const CDocument& document, const std::string& path)
{
    document.write(CFileTarget(path));
    return 0;
}

const CRow kLoad("scene_load", [] {
    const std::string path = terrainFile();
    return SPair{[path] { return secondsOf([&] { return loadPlain(path); }); },
                 [path] { return secondsOf([&] { return loadOwn(path); }); }};
});

const CRow kLoadPeak("scene_load_peak", [] {
    const std::string path = terrainFile();
    return SPair{[path] { return memoryOf([&] { return loadPlain(path); }).peak; },
                 [path] { return memoryOf([&] { return loadOwn(path); }).peak; }};
});

const CRow kSave("scene_save", [] {
    const std::string path = terrainFile();
    const std::string plainOut = workPath("plain.out"), ownOut = workPath("own.out");
    return SPair{[plainOut, mesh = loadPlain(path)] {
                     return secondsOf([&] { return savePlain(*mesh, plainOut); });
                 },
                 [ownOut, document = loadOwn(path)] {
                     return secondsOf([&] { return saveOwn(*document, ownOut); });
                 }};
});

const CRow kSavePeak("scene_save_peak", [] {
    const std::string path = terrainFile();
    const std::string out = workPath("scene.out");
    return SPair{[out, mesh = loadPlain(path)] {
                     return memoryOf([&] {
                                savePlain(*mesh, out);
                                return std::shared_ptr<void>();
                            })
                         .peak;
                 },
                 [out, document = loadOwn(path)] {
                     return memoryOf([&] {
                                saveOwn(*document, out);
                                return std::shared_ptr<void>();
                            })
                         .peak;
                 }};
});

const CRow kDestroy("scene_destroy", [] {
    const std::string path = terrainFile();
    return SPair{[path] { return secondsOf([&] { return loadOwn(path); }); },
                 [path] {
                     CDocument document = CDocument::from(CFileSource(path));
                     const double start = processSeconds();
                     document.release();
                     return processSeconds() - start;
                 }};
});

} // namespace

} // namespace ZelBench
