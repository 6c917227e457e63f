#include "objects/CDefinitionName.h"

namespace OvZel {

void CDefinitionBasicData::setName(const char* name)
{
    if (name == nullptr)
        return warn("CZelBasicData::setName - inName is NULL");
    definitionName().setCurrentText(name);
}

} // namespace OvZel
