#include "materials/CCustomNode.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

using OrvaneXML::XIXMLElement;

void CCustomNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    const XIXMLElement* data = getData();
    OvThrow::IfNULL(data);
    OvThrow::IfNULL(data->GetNode()->CloneInto(out.element()));
}

void CCustomNode::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    // Data without a class is reported and not taken; the load goes on.
    initWithXML(in.GetElement("Custom.Data"));
}

XIXMLElement* CCustomNode::addChildElement(const CZelXMLAdd& out, std::int32_t index) const
{
    // Also a node without children has the container.
    XIXMLElement* childs =
        index == 0 ? out.AddElement("Childs") : CZelXMLGet(out.element()).GetElement("Childs");
    return index < getNbChilds() ? CZelXMLAdd(childs).AddElement("Node") : nullptr;
}

XIXMLElement* CCustomNode::getChildElement(const CZelXMLGet& in, XIXMLElement* previous) const
{
    if (previous != nullptr)
        return previous->GetNextSame();
    return CZelXMLGet(in.GetElement("Childs")).FindElement("Node");
}

} // namespace OvZel
