#pragma once

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

/// The file form of one object alone, for the value-like parts of an owner.
class IZelXML {
public:
    /// Adds a child with the object's own tag to the element and fills it. Returns the element that
    /// was written, or null after a failure, which goes to the feedback as a warning.
    virtual OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) = 0;
    /// Reads the first child with the object's own tag. With getUUID the identifiers in the file
    /// replace those of the object. False after a failure, which goes to the feedback as a warning;
    /// what was read before it stays.
    virtual bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) = 0;

protected:
    ~IZelXML() = default;
};

} // namespace OvZel
