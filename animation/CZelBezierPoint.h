#pragma once

#include "xml/TZelXMLFrontierObjLinkRef.h"

#include <zel/IZelBezierPoint.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A point of a 3D path.
class CZelBezierPoint : public TZelXMLFrontierObjLinkRef<IZelBezierPoint> {
public:
    explicit CZelBezierPoint(IZelObjectLinkRef* owner) : TZelXMLFrontierObjLinkRef(owner) {}

    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& point) override { mPosition = point; }
    const CZelPoint& getCPBefore() const override { return mCPBefore; }
    void setCPBefore(const CZelPoint& point) override { mCPBefore = point; }
    const CZelPoint& getCPAfter() const override { return mCPAfter; }
    void setCPAfter(const CZelPoint& point) override { mCPAfter = point; }
    bool getAreLocked() const override { return mAreLocked; }
    void setAreLocked(bool locked) override { mAreLocked = locked; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelPoint mPosition;
    CZelPoint mCPBefore{-100.0, 0.0, 0.0};
    CZelPoint mCPAfter{100.0, 0.0, 0.0};
    bool mAreLocked = true;
};

} // namespace OvZel
