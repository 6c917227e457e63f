#include "document/CReadOrigin.h"

#include "core/OvThrow.h"
#include "xml/tree/CXMLText.h"

#include <string_view>

namespace OvZel {

void* CReadOrigin::StartElement(const char* name)
{
    const std::string_view tag = name;
    if (tag == "Origin") {
        mInOrigin = true;
    } else if (tag != "Zel.File" && tag != "Preview.Image" && tag != "File.Info") {
        mDone = true;
        OvThrow::Signal("No origin");
    }
    return nullptr;
}

void CReadOrigin::Attribute(const char* name, const char* value)
{
    if (!mInOrigin)
        return;
    double number = 0;
    if (OrvaneXML::scanTextf(value, "%lf", &number) != 1)
        OvThrow::Signal("Not a double value");
    const std::string_view axis = name;
    if (axis == "X") {
        mOrigin[0] = number;
    } else if (axis == "Y") {
        mOrigin[1] = number;
    } else if (axis == "Z") {
        // The last one by the order that every writer keeps.
        mOrigin[2] = number;
        mDone = true;
        OvThrow::Signal("Succeed");
    } else {
        OvThrow::Signal("Unexpected attribute");
    }
}

} // namespace OvZel
