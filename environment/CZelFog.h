#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelFog.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A ground fog.
class CZelFog : public TZelXMLFrontierObjLink<IZelFog> {
public:
    /// The owner may be null.
    explicit CZelFog(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    double getDensity() const override { return mDensity; }
    void setDensity(double density) override { mDensity = density; }
    double getStartDistance() const override { return mStartDistance; }
    void setStartDistance(double distance) override { mStartDistance = distance; }
    double getEndDistance() const override { return mEndDistance; }
    void setEndDistance(double distance) override { mEndDistance = distance; }
    double getAltitude() const override { return mAltitude; }
    void setAltitude(double altitude) override { mAltitude = altitude; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    CZelColor mColor = CZelColor::rgb(221, 221, 221);
    double mDensity = 0.5;
    double mStartDistance = 50.0;
    double mEndDistance = 2500.0;
    double mAltitude = 300.0;
};

} // namespace OvZel
