#include "document/CHeadParser.h"

#include "core/OvThrow.h"

namespace OvZel {

void* CHeadParser::StartElement(const char*)
{
    OvThrow::Signal("XML mais pas ZEL"); // (sic) clients show it
}

void CHeadParser::Attribute(const char*, const char*)
{
    OvThrow::Signal("Impossible");
}

void CHeadParser::Text(const char*)
{
    OvThrow::Signal("Impossible");
}

void CHeadParser::EndElement(void*)
{
    OvThrow::Signal("Impossible");
}

} // namespace OvZel
