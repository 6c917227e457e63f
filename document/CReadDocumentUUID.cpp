#include "document/CReadDocumentUUID.h"

#include "core/OvThrow.h"

#include <string_view>

namespace OvZel {

void* CReadDocumentUUID::StartElement(const char* name)
{
    const std::string_view tag = name;
    if (tag == "File.Info") {
        mInFileInfo = true;
    } else if (tag != "Zel.File" && tag != "Preview.Image") {
        mDone = true;
        OvThrow::Signal("No origin");
    }
    return nullptr;
}

void CReadDocumentUUID::Attribute(const char* name, const char* value)
{
    if (!mInFileInfo || mDone)
        return;
    if (std::string_view(name) != "UUID")
        OvThrow::Signal("Unexpected attribute");
    mId = CZelUUID(value);
    mDone = true;
}

} // namespace OvZel
