#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelLaser.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The plane of light of a view.
class CZelLaser : public TZelXMLFrontierObjLink<IZelLaser> {
public:
    explicit CZelLaser(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const CZelPoint& getNormal() const override { return mNormal; }
    void setNormal(const CZelPoint& normal) override { mNormal = normal; }
    const CZelPoint& getReference() const override { return mReference; }
    void setReference(const CZelPoint& point) override { mReference = point; }
    double getDistance() const override { return mDistance; }
    void setDistance(double distance) override { mDistance = distance; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    CZelPoint mNormal{0.0, 0.0, 1.0};
    CZelPoint mReference;
    double mDistance = 0.0;
};

} // namespace OvZel
