#include "materials/CCustomNode.h"

#include "core/CZelMgrRef.h"

namespace OvZel {

namespace {

using OrvaneXML::XIXMLAttribute;
using OrvaneXML::XIXMLElement;

XIXMLAttribute* classOf(const XIXMLElement* data)
{
    return data != nullptr ? data->FindAttribute(data->MakeKey("Class")) : nullptr;
}

} // namespace

CCustomNode::CCustomNode(ITCENode* parent) : TTCENode(parent)
{
    XIXMLElement* root = mTree.GetRoot();
    XIXMLElement* data = root->AddElement(root->MakeKey("Custom.Data"));
    data->AddAttribute(data->MakeKey("Class"), "Unknown");
}

CCustomNode::CCustomNode(ITCENode* parent, const CCustomNode& source) : TTCENode(parent, source)
{
    if (const XIXMLElement* data = source.getData())
        takeData(*data);
}

XIXMLElement* CCustomNode::data() const
{
    const XIXMLElement* root = mTree.GetRoot();
    return root->FindElement(root->MakeKey("Custom.Data"));
}

const char* CCustomNode::getClass() const
{
    if (const XIXMLAttribute* attribute = classOf(data()))
        return attribute->GetValue();
    getEnclosingMgr()->warning("ICustomNode::getClass - data integrity failed");
    return nullptr;
}

void CCustomNode::setClass(const char* name)
{
    if (XIXMLAttribute* attribute = classOf(data()))
        attribute->SetValue(name);
    // Clients know this report as the sign of a change; it goes out every time.
    getEnclosingMgr()->warning("ICustomNode::setClass - data integrity failed");
}

bool CCustomNode::initWithXML(XIXMLElement* element)
{
    const bool isGood =
        element != nullptr && element->GetKey() == "Custom.Data" && classOf(element) != nullptr;
    if (isGood && takeData(*element))
        return true;
    getEnclosingMgr()->warning("ICustomNode::initWithXML - invalid parameter");
    return false;
}

bool CCustomNode::takeData(const XIXMLElement& element)
{
    // The old element goes last: the given one may be it, or stand in it.
    XIXMLElement* old = data();
    if (element.GetNode()->CloneInto(mTree.GetRoot()) == nullptr)
        return false;
    if (old != nullptr)
        old->Destroy();
    return true;
}

} // namespace OvZel
