#include "tools/commands.h"

#include "tools/CToolError.h"

namespace tool {

// In place of the import, where the library for it is missing.
void fromModelCommand(const CFromModel& request)
{
    throw CToolError(eUnavailable, request.model + ": this zel is built without Assimp");
}

} // namespace tool
