#include "document/CCheckZELCreatorFile.h"

#include "xml/tree/CXMLText.h"

#include <cstring>

namespace OvZel {

bool CCheckZELCreatorFile::Instruction(const char* target, const char* content)
{
    if (std::strcmp(target, "Application") != 0)
        return true;
    char name[128];
    if (OrvaneXML::scanTextf(content, "name=\"%127s", name) == 1) {
        mApplication = name;
        if (!mApplication.empty() && mApplication.back() == '"')
            mApplication.pop_back();
    }
    return false;
}

} // namespace OvZel
