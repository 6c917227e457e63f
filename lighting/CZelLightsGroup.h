#pragma once

#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelLightsGroup.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A named set of lights.
class CZelLightsGroup : public TZelXMLCOMObjLinkRef<IZelLightsGroup> {
public:
    /// The owner may be null.
    explicit CZelLightsGroup(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);
};

} // namespace OvZel
