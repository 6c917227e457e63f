#include "xml/CZelXMLGet.h"

#include "core/OvThrow.h"
#include "xml/hexWord.h"
#include "xml/ownElement.h"
#include "xml/tree/CXMLText.h"
#include "xml/tree/commonTexts.h"

#include <cstdarg>
#include <cstring>

namespace OvZel {

using OrvaneXML::CXMLElement;
using OrvaneXML::XIXMLAttribute;
using OrvaneXML::XIXMLElement;

namespace {

/// The text of an element that must have a text node. Asking the element itself spares the tree a
/// node for each number that is read.
const char* requiredText(XIXMLElement* element, const char* operation)
{
    const char* text = element->GetNode()->GetText();
    if (*text == '\0')
        OvThrow::IfNULL(element->GetFirstText(), operation);
    return text;
}

/// Eight digits at once, as a file has them; any other form is left to the identifier itself.
CZelUUID toId(const char* text)
{
    constexpr std::size_t kNbDigits = 32;
    CZelUUID id;
    if (text == OrvaneXML::kNoIdText)
        return id;
    std::uint64_t bad = ::strnlen(text, kNbDigits) < kNbDigits;
    for (std::size_t i = 0; i < 4 && bad == 0; ++i)
        bad = decodeHexWord(text + i * 8, id.bytes + i * 4);
    return bad == 0 ? id : CZelUUID(text);
}

} // namespace

CZelXMLGet::CZelXMLGet(XIXMLElement* element) : mElement(element)
{
    OvThrow::IfNULL(element, "CZelXMLGet::CZelXMLGet");
}

XIXMLElement* CZelXMLGet::FindElement(CXMLTag tag) const
{
    if (const CXMLElement* own = ownElement(*mElement))
        return own->FindChild(own->NameOf(tag));
    return mElement->FindElement(mElement->MakeKey(tag.text()));
}

XIXMLElement* CZelXMLGet::GetElement(CXMLTag tag) const
{
    XIXMLElement* found = FindElement(tag);
    OvThrow::IfNULL(found, "CZelXMLGet::GetElement", tag.text());
    return found;
}

std::int32_t CZelXMLGet::GetInteger(CXMLTag tag) const
{
    int value = 0;
    OrvaneXML::scanInteger(requiredText(GetElement(tag), "CZelXMLGet::GetInteger"), value);
    return value;
}

std::int64_t CZelXMLGet::GetInteger64(CXMLTag tag) const
{
    long long value = 0;
    OrvaneXML::scanTextf(requiredText(GetElement(tag), "CZelXMLGet::GetInteger64"), "%lld", &value);
    return value;
}

double CZelXMLGet::GetDouble(CXMLTag tag) const
{
    double value = 0.0;
    OrvaneXML::scanReal(requiredText(GetElement(tag), "CZelXMLGet::GetDouble"), value);
    return value;
}

float CZelXMLGet::GetFloat(CXMLTag tag) const
{
    double value = 0.0;
    OrvaneXML::scanReal(requiredText(GetElement(tag), "CZelXMLGet::GetFloat"), value);
    return static_cast<float>(value);
}

const char* CZelXMLGet::GetText(CXMLTag tag) const
{
    return GetElement(tag)->GetNode()->GetText();
}

int CZelXMLGet::GetFmtData(XIXMLElement* element, const char* format, ...)
{
    OvThrow::IfNULL(element, "CZelXMLGet::GetFmtData");
    const char* text = requiredText(element, "CZelXMLGet::GetFmtData");
    std::va_list arguments;
    va_start(arguments, format);
    const int nbStored = OrvaneXML::scanText(text, format, arguments);
    va_end(arguments);
    return nbStored;
}

const char* CZelXMLGet::GetOptionalAttribute(CXMLTag name) const
{
    if (const CXMLElement* own = ownElement(*mElement))
        return own->Attributes().ValueOf(own->NameOf(name));
    const XIXMLAttribute* attribute = mElement->FindAttribute(mElement->MakeKey(name.text()));
    return attribute != nullptr ? attribute->GetValue() : nullptr;
}

const char* CZelXMLGet::getAttribute(CXMLTag name, const char* operation) const
{
    const char* value = GetOptionalAttribute(name);
    OvThrow::IfNULL(value, operation, name.text());
    return value;
}

int CZelXMLGet::GetFmtAttribute(CXMLTag name, const char* format, ...) const
{
    const char* text = getAttribute(name, "CZelXMLGet::GetFmtAttribute");
    std::va_list arguments;
    va_start(arguments, format);
    const int nbStored = OrvaneXML::scanText(text, format, arguments);
    va_end(arguments);
    return nbStored;
}

CZelUUID CZelXMLGet::GetUUID(CXMLTag name) const
{
    return toId(getAttribute(name, "CZelXMLGet::GetUUID"));
}

std::int32_t CZelXMLGet::GetAttributeLabel(CXMLTag name, const CZelLabel* table) const
{
    return labelValue(table, getAttribute(name, "CZelXMLGet::GetAttributeLabel"));
}

const char* CZelXMLGet::GetAttributeLanguage(CXMLTag tag) const
{
    const char* text = child(tag).GetOptionalAttribute("en");
    OvThrow::IfNULL(text, "CZelXMLGet::GetAttributeLanguage");
    return text;
}

} // namespace OvZel
