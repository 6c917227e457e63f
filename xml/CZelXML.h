#pragma once

#include <zel/IZelObjectLink.h>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class CZelXMLIO;

/// The XML facet of a part with a plain owner, without the slots: those come with its interface.
class CZelXML {
public:
    /// Adds a child with the object's own tag, fills it and returns it.
    virtual OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;
    /// Reads the first child with the object's own tag.
    virtual bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;

protected:
    /// Takes the object's own link.
    explicit CZelXML(const IZelObjectLink* self) : mSelf(self) {}
    ~CZelXML() = default;
    CZelXML(const CZelXML&) = delete;
    CZelXML& operator=(const CZelXML&) = delete;

    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element);
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID);

private:
    const IZelObjectLink* mSelf;
};

} // namespace OvZel
