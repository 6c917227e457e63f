#include "tools/commands.h"

#include "tools/CToolDocument.h"
#include "tools/loadForSave.h"

namespace tool {

static void loadBare(CToolDocument& document, const std::string& file)
{
    CFileReadStream stream(file);
    document.read(stream, file);
}

void rewriteCommand(const CRewrite& request)
{
    CToolDocument document;
    if (request.bare)
        loadBare(document, request.in);
    else
        loadForSave(document, request.in, "--force saves", request.force);
    document.save(request.out, nullptr, request.minVersion ? &*request.minVersion : nullptr);
}

} // namespace tool
