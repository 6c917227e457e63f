#include "tools/commands.h"

#include "tools/CAtomicFile.h"
#include "tools/CMeshSink.h"
#include "tools/CObjWriter.h"
#include "tools/CToolDocument.h"

namespace tool {

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
    CAtomicFile file(obj);
    CObjWriter writer(file.stream());
    CMeshSink sink(writer);
    CToolDocument document;
    document.read(stream, in, &sink);
    file.commit();
    reportLosses(writer, in);
}

} // namespace tool
