#pragma once

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

/// Adds a child for each element of the list, in the order of the list.
template <class Mgr>
void addItems(CZelXMLIO& io, OrvaneXML::XIXMLElement* container, OrvaneXML::CXMLTag itemTag,
              const Mgr& list)
{
    const CZelXMLAdd out(container);
    for (std::int32_t i = 0; i < list.size(); ++i)
        list.at(i)->addTo(io, CZelXMLAdd(out.AddElement(itemTag)));
}

/// Empties the list and fills it from the children of that name. What fails leaves the list with
/// the elements before it and the one that failed.
template <class Mgr>
void getItems(CZelXMLIO& io, OrvaneXML::XIXMLElement* container, OrvaneXML::CXMLTag itemTag,
              Mgr& list)
{
    list.removeAllObjects();
    for (OrvaneXML::XIXMLElement* child = CZelXMLGet(container).FindElement(itemTag);
         child != nullptr; child = child->GetNextSame()) {
        auto* element = list.append();
        OvThrow::IfNULL(element);
        element->getFrom(io, CZelXMLGet(child));
    }
}

/// The same for a list that a file may lack: it is empty then.
template <class Mgr>
void getOptionalItems(CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag listTag,
                      OrvaneXML::CXMLTag itemTag, Mgr& list)
{
    list.removeAllObjects();
    if (OrvaneXML::XIXMLElement* container = in.FindElement(listTag))
        getItems(io, container, itemTag, list);
}

/// The same for a list that every file has: without it the list is emptied and the read fails.
template <class Mgr>
void getRequiredItems(CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag listTag,
                      OrvaneXML::CXMLTag itemTag, Mgr& list)
{
    list.removeAllObjects();
    getItems(io, in.GetElement(listTag), itemTag, list);
}

} // namespace OvZel
