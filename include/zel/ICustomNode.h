#pragma once

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class ITCENode;

/// The node whose parameters are an XML element that only the client understands. It has any number
/// of children.
///
/// Part of its node, good as long as that. One thread at a time.
///
/// What an operation reports goes to the feedback of the document. Outside a tree the report raises
/// the null-pointer failure, after what the operation does.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class ICustomNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// The attribute "Class" of the data, "Unknown" in a new node; good until it is set again. Null
    /// and "ICustomNode::getClass - data integrity failed" when a client has taken it away.
    virtual const char* getClass() const = 0;
    /// Sets the attribute if it is there. Reports "ICustomNode::setClass - data integrity failed"
    /// every time, whether it could be set or not.
    virtual void setClass(const char* name) = 0;
    /// The element "Custom.Data". It belongs to the node and is good until initWithXML replaces it.
    virtual const OrvaneXML::XIXMLElement* getData() const = 0;
    virtual OrvaneXML::XIXMLElement* getData() = 0;
    /// Replaces the data by a copy of the element, which must have the name "Custom.Data" and the
    /// attribute "Class"; otherwise, also on null, "ICustomNode::initWithXML - invalid parameter"
    /// is reported, the result is false and the node stays as it was.
    virtual bool initWithXML(OrvaneXML::XIXMLElement* element) = 0;

protected:
    ~ICustomNode() = default;
};

} // namespace OvZel
