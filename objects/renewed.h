#pragma once

#include "xml/CZelXMLAdd.h"

namespace OvZel {

/// Destroys the children of that name, which a save is about to write again; returns the name.
inline OrvaneXML::CXMLTag renewed(const CZelXMLAdd& data, OrvaneXML::CXMLTag tag)
{
    data.DestroyElements(tag);
    return tag;
}

/// The same for attributes.
inline OrvaneXML::CXMLTag renewedAttribute(const CZelXMLAdd& data, OrvaneXML::CXMLTag name)
{
    data.element()->RemoveAttribute(data.element()->MakeKey(name.text()));
    return name;
}

} // namespace OvZel
