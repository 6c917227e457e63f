#pragma once

#include "xml/CZelXMLAdd.h"

namespace OvZel {

/// Destroys the children of that name, which a save is about to write again; returns the name.
inline const char* renewed(const CZelXMLAdd& data, const char* tag)
{
    data.DestroyElements(tag);
    return tag;
}

/// The same for attributes.
inline const char* renewedAttribute(const CZelXMLAdd& data, const char* name)
{
    data.element()->RemoveAttribute(data.element()->MakeKey(name));
    return name;
}

} // namespace OvZel
