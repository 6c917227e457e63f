#pragma once

#include "materials/TTCENode.h"
#include "xml/tree/XCXMLTree.h"

#include <zel/ICustomNode.h>

namespace OvZel {

/// A node with an XML element of the client's, which stands in a tree of the node's own.
class CCustomNode : public TTCENode<ICustomNode> {
public:
    explicit CCustomNode(ITCENode* parent);
    CCustomNode(ITCENode* parent, const CCustomNode& source);

    eNodeType getNodeType() const override { return eCustomNode; }
    ICustomNode* asCustomNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    XIXMLElement* addChildElement(const CZelXMLAdd& out, std::int32_t index) const override;
    XIXMLElement* getChildElement(const CZelXMLGet& in, XIXMLElement* previous) const override;

    const char* getClass() const override;
    void setClass(const char* name) override;
    const XIXMLElement* getData() const override { return data(); }
    XIXMLElement* getData() override { return data(); }
    bool initWithXML(XIXMLElement* element) override;

private:
    /// Null when a client has destroyed or renamed it.
    XIXMLElement* data() const;
    /// False, with the node as it was, when the element can't be copied.
    bool takeData(const XIXMLElement& element);

    OrvaneXML::XCXMLTree mTree;
};

} // namespace OvZel
