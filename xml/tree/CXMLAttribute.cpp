#include "xml/tree/CXMLAttribute.h"

#include "xml/tree/CXMLText.h"

namespace OrvaneXML {

int CXMLAttribute::Scan(const char* format, ...) const
{
    std::va_list arguments;
    va_start(arguments, format);
    const int nbStored = scanText(mValue, format, arguments);
    va_end(arguments);
    return nbStored;
}

int CXMLAttribute::Print(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const CXMLPrinted printed(format, arguments);
    va_end(arguments);
    SetValue(printed.text());
    return printed.length();
}

void CXMLAttribute::SetValue(const char* value)
{
    mName->store->ReplaceText(mValue, textOrEmpty(value));
}

void CXMLAttribute::Release(CXMLStore& store)
{
    store.nbBad -= mName->isBad;
    store.FreeText(mValue);
    store.pool.Free(this, sizeof *this);
}

} // namespace OrvaneXML
