#pragma once

#include "core/TZelBase.h"
#include "xml/CZelXMLRef.h"

namespace OvZel {

/// A part with an XML form that keeps the small counted owner object of its manager. I begins with
/// IZelXML.
template <class I>
class TZelXMLFrontierObjLinkRef : public TZelBase<I>, public CZelXMLRef {
public:
    IZelObjectLink* getOwnerLink() const override { return this->owner(); }
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override
    {
        return CZelXMLRef::putInXML(element);
    }
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) override
    {
        return CZelXMLRef::initWithXML(element, getUUID);
    }

protected:
    /// The owner may be null.
    explicit TZelXMLFrontierObjLinkRef(IZelObjectLinkRef* owner) : CZelXMLRef(owner) {}
};

} // namespace OvZel
