#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelExposureFilter.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// Exposure of the finished picture; the element "Exposure.Filter".
class CZelExposureFilter : public TZelXMLFrontierObjLink<IZelExposureFilter> {
public:
    explicit CZelExposureFilter(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getExposure() const override { return mExposure; }
    void setExposure(double exposure) override { mExposure = exposure; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    double mExposure = 0.5;
    double mSize = 0.5;
};

} // namespace OvZel
