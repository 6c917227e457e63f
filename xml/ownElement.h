#pragma once

#include "xml/tree/CXMLElement.h"

#include <typeinfo>

namespace OvZel {

/// The element as one of the library's own trees, which nearly all are, or null for one that a
/// client made. Asked directly, a tree spares the objects that it makes for those who ask through
/// the interfaces, and knows names in the code by their addresses.
inline OrvaneXML::CXMLElement* ownElement(OrvaneXML::XIXMLElement& element)
{
    return typeid(element) == typeid(OrvaneXML::CXMLElement)
               ? static_cast<OrvaneXML::CXMLElement*>(&element)
               : nullptr;
}

} // namespace OvZel
