#pragma once

#include "core/TZelComPtr.h"

#include <zel/IZelObjectLinkRef.h>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

class CZelXMLIO;

/// The XML facet of a part with a counted owner, without the slots: those come with its interface.
class CZelXMLRef {
public:
    /// Adds a child with the object's own tag, fills it and returns it.
    virtual OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;
    /// Reads the first child with the object's own tag.
    virtual bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) = 0;

protected:
    /// The owner may be null.
    explicit CZelXMLRef(IZelObjectLinkRef* owner) : mOwner(owner) {}
    ~CZelXMLRef() = default;
    CZelXMLRef(const CZelXMLRef&) = delete;
    CZelXMLRef& operator=(const CZelXMLRef&) = delete;

    IZelObjectLinkRef* owner() const { return mOwner.get(); }

    /// Without an owner these two raise "TZelComPtr::operator->() - Dereferencing NULL", to the
    /// client: there is nobody whom a warning could reach. Every later failure is a warning.
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element);
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID);

private:
    TZelComPtr<IZelObjectLinkRef> mOwner;
};

} // namespace OvZel
