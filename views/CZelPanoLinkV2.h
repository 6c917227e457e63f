#pragma once

#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelPanoLinkV2.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A way from one node of a panorama to another.
class CZelPanoLinkV2 : public TZelXMLCOMObjLinkRef<IZelPanoLinkV2> {
public:
    explicit CZelPanoLinkV2(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    const CZelUUID& getStart() const override { return mStart; }
    void setStart(const CZelUUID& id) override { mStart = id; }
    const CZelUUID& getEnd() const override { return mEnd; }
    void setEnd(const CZelUUID& id) override { mEnd = id; }
    const CZelUUID& getPathId() const override { return mPathId; }
    void setPathId(const CZelUUID& id) override { mPathId = id; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelUUID mStart;
    CZelUUID mEnd;
    CZelUUID mPathId;
};

} // namespace OvZel
