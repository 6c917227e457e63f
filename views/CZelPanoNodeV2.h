#pragma once

#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelPanoNodeV2.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A viewpoint of a panorama.
class CZelPanoNodeV2 : public TZelXMLCOMObjLinkRef<IZelPanoNodeV2> {
public:
    explicit CZelPanoNodeV2(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& point) override { mPosition = point; }
    const CZelPoint& getDirection() const override { return mDirection; }
    void setDirection(const CZelPoint& direction) override { mDirection = direction; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    /// Without a name or a position the node stays as it is, and that is no failure.
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelPoint mPosition;
    CZelPoint mDirection{0.0, 0.0, 1.0};
};

} // namespace OvZel
