#include "import/componentLevels.h"

#include <zel/IZelMgr.h>

namespace OvZel {

std::int32_t countComponents(IZelMgr& document)
{
    TZelObjectMgr<IZelZelObjectDefinition>& definitions = *document.getDefinitions();
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < definitions.getNbObjects(); ++i)
        if (definitions.getZelObject(i)->getGeometryLevel() != kIgnoredLevel)
            ++count;
    return count;
}

bool endsAtLevelZero(IZelMgr& document)
{
    TZelObjectMgr<IZelZelObjectDefinition>& definitions = *document.getDefinitions();
    for (std::int32_t i = definitions.getNbObjects() - 1; i >= 0; --i) {
        const std::int32_t level = definitions.getZelObject(i)->getGeometryLevel();
        if (level != kIgnoredLevel)
            return level == 0;
    }
    return false;
}

} // namespace OvZel
