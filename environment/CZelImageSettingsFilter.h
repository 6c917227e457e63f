#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelImageSettingsFilter.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// Brightness, contrast and colour of the finished picture; the element "Image.Settings.Filter".
class CZelImageSettingsFilter : public TZelXMLFrontierObjLink<IZelImageSettingsFilter> {
public:
    explicit CZelImageSettingsFilter(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override { mContrast = contrast; }
    double getSaturation() const override { return mSaturation; }
    void setSaturation(double saturation) override { mSaturation = saturation; }
    bool getUseMixColor() const override { return mUseMixColor; }
    void setUseMixColor(bool use) override { mUseMixColor = use; }
    CZelColor getMixColor() const override { return mMixColor; }
    void setMixColor(const CZelColor& color) override { mMixColor = color; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = true;
    double mBrightness = 0.5;
    double mContrast = 0.5;
    double mSaturation = 0.5;
    bool mUseMixColor = false;
    CZelColor mMixColor = CZelColor::rgb(255, 255, 255);
};

} // namespace OvZel
