#include "tools/commands.h"

#include "tools/CAtomicFile.h"
#include "tools/CObjWriter.h"
#include "tools/CToolDocument.h"

namespace tool {

static std::string nameOf(OvZel::IZelZelObjectDefinition& definition)
{
    char text[33];
    definition.getBasicData()->getId()->toText(text);
    return std::string("component_") + text;
}

static void addMeshes(OvZel::IZelMgr& document, CObjWriter& writer)
{
    writer.addMesh("", *document.getPoints(), *document.getPolygons());
    OvZel::TZelObjectMgr<OvZel::IZelZelObjectDefinition>& definitions = *document.getDefinitions();
    for (std::int32_t i = 0; i < definitions.getNbObjects(); ++i) {
        OvZel::IZelZelObjectDefinition& definition = *definitions.getZelObject(i);
        writer.addMesh(nameOf(definition), *definition.getPoints(), *definition.getPolygons());
    }
}

static void reportLosses(const CObjWriter& writer, const std::string& in)
{
    if (writer.getNbWithHoles() > 0)
        complain(in + ": polygons with holes, whose loops became faces of their own: " +
                 std::to_string(writer.getNbWithHoles()));
    if (writer.getNbLeftOut() > 0)
        complain(in +
                 ": loops that can't be faces, left out: " + std::to_string(writer.getNbLeftOut()));
}

void toModelCommand(const std::string& in, const std::string& obj)
{
    CFileReadStream stream(in);
    CToolDocument document;
    document.read(stream, in);
    CAtomicFile file(obj);
    CObjWriter writer(file.stream());
    addMeshes(*document, writer);
    file.commit();
    reportLosses(writer, in);
}

} // namespace tool
