#pragma once

#include "core/TZelFrontierObjLink.h"
#include "xml/CZelXML.h"

namespace OvZel {

/// A part with an XML form that links to its owner without keeping it. I begins with IZelXML.
template <class I>
class TZelXMLFrontierObjLink : public TZelFrontierObjLink<I>, public CZelXML {
public:
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override
    {
        return CZelXML::putInXML(element);
    }
    bool initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID) override
    {
        return CZelXML::initWithXML(element, getUUID);
    }

protected:
    /// The owner may be null.
    explicit TZelXMLFrontierObjLink(IZelObjectLink* owner)
        : TZelFrontierObjLink<I>(owner), CZelXML(static_cast<IZelObjectLink*>(this))
    {
    }
};

} // namespace OvZel
