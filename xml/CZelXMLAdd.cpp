#include "xml/CZelXMLAdd.h"

#include "core/OvThrow.h"
#include "xml/hexWord.h"
#include "xml/ownElement.h"
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

XIXMLElement* CZelXMLAdd::newChild(CXMLTag tag) const
{
    if (OrvaneXML::CXMLElement* own = ownElement(*mElement))
        return own->AppendElement(own->NameOf(tag));
    return mElement->AddElement(mElement->MakeKey(tag.text()));
}

XIXMLElement* CZelXMLAdd::AddElement(CXMLTag tag) const
{
    XIXMLElement* child = newChild(tag);
    OvThrow::IfNULL(child, "CZelXMLAdd::AddElement", tag.text());
    return child;
}

XIXMLElement* CZelXMLAdd::ReuseElement(CXMLTag tag) const
{
    DestroyElements(tag);
    return AddElement(tag);
}

void CZelXMLAdd::DestroyElements(CXMLTag tag) const
{
    DestroySame(mElement->FindElement(mElement->MakeKey(tag.text())));
}

void CZelXMLAdd::DestroySame(XIXMLElement* element)
{
    while (element != nullptr) {
        XIXMLElement* next = element->GetNextSame();
        element->Destroy();
        element = next;
    }
}

XIXMLElement* CZelXMLAdd::AddBoolean(CXMLTag tag, bool value) const
{
    return value ? newChild(tag) : nullptr;
}

XIXMLElement* CZelXMLAdd::addText(CXMLTag tag, const char* text) const
{
    XIXMLElement* child = AddElement(tag);
    if (*text != '\0')
        child->GetNode()->SetText(text); // asking the element itself spares the tree a node
    return child;
}

XIXMLElement* CZelXMLAdd::AddInteger(CXMLTag tag, std::int32_t value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printInteger(text, value);
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddInteger64(CXMLTag tag, std::int64_t value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printTextf(text, sizeof text, "%lld", static_cast<long long>(value));
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddDouble(CXMLTag tag, double value) const
{
    char text[OrvaneXML::kLongestReal];
    OrvaneXML::printReal(text, value);
    return addText(tag, text);
}

XIXMLElement* CZelXMLAdd::AddFloat(CXMLTag tag, float value) const
{
    return AddDouble(tag, static_cast<double>(value));
}

XIXMLElement* CZelXMLAdd::AddText(CXMLTag tag, const char* text) const
{
    return addText(tag, text != nullptr ? text : "");
}

XIXMLElement* CZelXMLAdd::AddFmtData(CXMLTag tag, const char* format, ...) const
{
    char buffer[kFormattedSize];
    std::va_list arguments;
    va_start(arguments, format);
    const bool fits = print(buffer, format, arguments);
    va_end(arguments);
    OvThrow::IfFalse(fits, "CZelXMLAdd::AddFmtData", tag.text());
    return addText(tag, buffer);
}

void CZelXMLAdd::AddAttribute(CXMLTag name, const char* text) const
{
    if (OrvaneXML::CXMLElement* own = ownElement(*mElement))
        own->SetAttribute(own->NameOf(name), OrvaneXML::textOrEmpty(text));
    else
        mElement->AddAttribute(mElement->MakeKey(name.text()), text);
}

void CZelXMLAdd::AddFmtAttribute(CXMLTag name, const char* format, ...) const
{
    char buffer[kFormattedSize];
    std::va_list arguments;
    va_start(arguments, format);
    const bool fits = print(buffer, format, arguments);
    va_end(arguments);
    OvThrow::IfFalse(fits, "CZelXMLAdd::AddFmtAttribute", name.text());
    AddAttribute(name, buffer);
}

void CZelXMLAdd::AddAttributeLabel(CXMLTag name, const CZelLabel* table, std::int32_t value) const
{
    AddAttribute(name, labelText(table, value));
}

void CZelXMLAdd::AddUUID(CXMLTag name, const CZelUUID& id) const
{
    if (id.isNull())
        return AddAttribute(name, OrvaneXML::kNoIdText);
    char text[33];
    for (std::size_t i = 0; i < 4; ++i)
        encodeHexWord(id.bytes + i * 4, text + i * 8);
    text[32] = '\0';
    AddAttribute(name, text);
}

} // namespace OvZel
