#include "tools/commands.h"

#include "tools/CAtomicFile.h"
#include "tools/CMeshSink.h"
#include "tools/CNoMeshes.h"
#include "tools/CObjWriter.h"
#include "tools/CToolDocument.h"
#include "tools/platform.h"

#include <optional>

namespace tool {

static void reportLosses(const CObjWriter& writer, const CObjPlaces& places, const std::string& in)
{
    const auto report = [&](const char* what, std::uint64_t count) {
        if (count > 0)
            complain(in + ": " + what + ": " + std::to_string(count));
    };
    report("polygons with holes, whose loops became faces of their own", writer.getNbWithHoles());
    report("loops that can't be faces, left out", writer.getNbLeftOut());
    report("instances of no component of the document, left out", places.getNbLeftOut());
}

// What was odd has been told when the document was read.
static void readMeshes(CToolDocument& document, CFileReadStream& stream, CMeshSink& sink)
{
    stream.setPosition(0);
    document.feedback().setReceiver([](const std::string&) {});
    document->readCData(&stream, &sink);
    document.feedback().clearBar();
    stream.check();
}

static std::string mtlBeside(const std::string& obj)
{
    std::string mtl = fileName(filePath(obj).replace_extension(".mtl"));
    return mtl == obj ? obj + ".mtl" : mtl;
}

void toModelCommand(const std::string& in, const std::string& obj)
{
    CFileReadStream stream(in);
    CAtomicFile file(obj);
    CToolDocument document;
    CNoMeshes noMeshes;
    document.read(stream, in, &noMeshes);
    // Meshes come first in a file, but what places and colours them behind.
    const CObjPlaces places(*document);
    const CObjMaterials materials(*document);
    std::optional<CAtomicFile> mtlFile;
    if (!materials.text().empty()) {
        const std::string mtl = mtlBeside(obj);
        mtlFile.emplace(mtl).stream().writeText(materials.text());
        file.stream().writeText("mtllib " + fileName(filePath(mtl).filename()) + "\n");
    }
    CObjWriter writer(file.stream(), places, materials);
    CMeshSink sink(writer);
    readMeshes(document, stream, sink);
    writer.finish();
    file.check();
    if (mtlFile)
        mtlFile->commit();
    file.commit();
    reportLosses(writer, places, in);
}

} // namespace tool
