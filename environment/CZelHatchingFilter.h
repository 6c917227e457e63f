#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelHatchingFilter.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The finished picture as a hatched drawing; the element "Hatching.Filter".
class CZelHatchingFilter : public TZelXMLFrontierObjLink<IZelHatchingFilter> {
public:
    explicit CZelHatchingFilter(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getIntensityThreshold() const override { return mIntensityThreshold; }
    void setIntensityThreshold(double threshold) override { mIntensityThreshold = threshold; }
    double getContourThreshold() const override { return mContourThreshold; }
    void setContourThreshold(double threshold) override { mContourThreshold = threshold; }
    bool getUseTransparency() const override { return mUseTransparency; }
    void setUseTransparency(bool use) override { mUseTransparency = use; }
    double getTransparency() const override { return mTransparency; }
    void setTransparency(double transparency) override { mTransparency = transparency; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    double mIntensityThreshold = 0.5;
    double mContourThreshold = 0.5;
    bool mUseTransparency = true;
    double mTransparency = 1.0;
};

} // namespace OvZel
