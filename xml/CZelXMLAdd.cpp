#include "xml/CZelXMLAdd.h"

#include "core/OvThrow.h"
#include "xml/hexWord.h"
#include "xml/tree/CXMLText.h"

#include <cstdarg>
#include <exception>

namespace OvZel {

using OrvaneXML::XCXMLKey;
using OrvaneXML::XIXMLElement;

namespace {

constexpr std::size_t kFormattedSize = 2048;

/// False for a text that does not fit as for a format that cannot be printed.
bool print(char (&buffer)[kFormattedSize], const char* format, std::va_list arguments)
{
    try {
        const int length = OrvaneXML::printText(buffer, kFormattedSize, format, arguments);
        return length >= 0 && static_cast<std::size_t>(length) < kFormattedSize;
    } catch (const std::exception&) {
        return false; // reported by the caller, in the words of this layer
    }
}

} // namespace

CZelXMLAdd::CZelXMLAdd(XIXMLElement* element) : mElement(element)
{
    OvThrow::IfNULL(element, "CZelXMLAdd::CZelXMLAdd");
}

XIXMLElement* CZelXMLAdd::newChild(const char* tag) const
{
    return mElement->AddElement(mElement->MakeKey(tag));
}

XIXMLElement* CZelXMLAdd::AddElement(const char* tag) const
{
    XIXMLElement* child = newChild(tag);
    OvThrow::IfNULL(child, "CZelXMLAdd::AddElement", tag);
    return child;
}

XIXMLElement* CZelXMLAdd::ReuseElement(const char* tag) const
{
    DestroyElements(tag);
    return AddElement(tag);
}

void CZelXMLAdd::DestroyElements(const char* tag) const
{
    XIXMLElement* found = mElement->FindElement(mElement->MakeKey(tag));
    while (found != nullptr) {
        XIXMLElement* next = found->GetNextSame();
        found->Destroy();
        found = next;
    }
}

XIXMLElement* CZelXMLAdd::AddBoolean(const char* tag, bool value) const
{
    return value ? newChild(tag) : nullptr;
}

XIXMLElement* CZelXMLAdd::addText(const char* tag, const char* text) const
{
    XIXMLElement* child = AddElement(tag);
    if (*text != '\0')
        child->GetNode()->SetText(text); // asking the element itself spares the tree a node
    return child;
}

XIXMLElement* CZelXMLAdd::AddInteger(const char* tag, std::int32_t value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printInteger(text, value);
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddInteger64(const char* tag, std::int64_t value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printTextf(text, sizeof text, "%lld", static_cast<long long>(value));
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddDouble(const char* tag, double value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printReal(text, value);
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddFloat(const char* tag, float value) const
{
    return AddDouble(tag, static_cast<double>(value));
}

XIXMLElement* CZelXMLAdd::AddText(const char* tag, const char* text) const
{
    return addText(tag, text != nullptr ? text : "");
}

XIXMLElement* CZelXMLAdd::AddFmtData(const char* tag, const char* format, ...) const
{
    char buffer[kFormattedSize];
    std::va_list arguments;
    va_start(arguments, format);
    const bool fits = print(buffer, format, arguments);
    va_end(arguments);
    OvThrow::IfFalse(fits, "CZelXMLAdd::AddFmtData", tag);
    return addText(tag, buffer);
}

void CZelXMLAdd::AddAttribute(const char* name, const char* text) const
{
    mElement->AddAttribute(mElement->MakeKey(name), text);
}

void CZelXMLAdd::addReal(const char* name, double value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printReal(text, value);
    AddAttribute(name, text);
}

void CZelXMLAdd::AddFmtAttribute(const char* name, const char* format, ...) const
{
    char buffer[kFormattedSize];
    std::va_list arguments;
    va_start(arguments, format);
    const bool fits = print(buffer, format, arguments);
    va_end(arguments);
    OvThrow::IfFalse(fits, "CZelXMLAdd::AddFmtAttribute", name);
    AddAttribute(name, buffer);
}

void CZelXMLAdd::AddAttributeLabel(const char* name, const CZelLabel* table,
                                   std::int32_t value) const
{
    AddAttribute(name, labelText(table, value));
}

void CZelXMLAdd::AddUUID(const char* name, const CZelUUID& id) const
{
    char text[33];
    for (std::size_t i = 0; i < 4; ++i)
        encodeHexWord(id.bytes + i * 4, text + i * 8);
    text[32] = '\0';
    AddAttribute(name, text);
}

} // namespace OvZel
