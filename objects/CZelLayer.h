#pragma once

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelLayer.h>

namespace OvZel {

/// A layer is its basic data.
class CZelLayer : public TZelXMLCOMObjLinkRef<IZelLayer> {
public:
    explicit CZelLayer(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);
};

} // namespace OvZel
