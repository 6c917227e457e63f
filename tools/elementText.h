#pragma once

#include <string>

namespace OrvaneXML {
class XIXMLElement;
}

namespace tool {

/// An element with all that is below it as XML. The library hands out elements, but writes only
/// whole documents. Bytes in CDATA sections can't be read through an element and are left out.
std::string elementText(OrvaneXML::XIXMLElement& element);

} // namespace tool
