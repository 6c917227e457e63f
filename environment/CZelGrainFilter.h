#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelGrainFilter.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// Grain over the finished picture; the element "Grain.Filter".
class CZelGrainFilter : public TZelXMLFrontierObjLink<IZelGrainFilter> {
public:
    explicit CZelGrainFilter(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    double mBrightness = 0.5;
    double mSize = 0.5;
};

} // namespace OvZel
