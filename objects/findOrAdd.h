#pragma once

#include <zel/xml/XIXMLElement.h>

namespace OvZel {

/// The first child of that name; a new one, the last, if there is none.
inline OrvaneXML::XIXMLElement* findOrAdd(OrvaneXML::XIXMLElement& parent, const char* tag)
{
    const OrvaneXML::XCXMLKey key = parent.MakeKey(tag);
    OrvaneXML::XIXMLElement* found = parent.FindElement(key);
    return found != nullptr ? found : parent.AddElement(key);
}

} // namespace OvZel
