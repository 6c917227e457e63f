#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelToneSettings.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The tones of a view; the element "Tone.Settings".
class CZelToneSettings : public TZelXMLFrontierObjLink<IZelToneSettings> {
public:
    explicit CZelToneSettings(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    double getLightsTones() const override { return mLightsTones; }
    void setLightsTones(double tones) override { mLightsTones = tones; }
    double getDarkTones() const override { return mDarkTones; }
    void setDarkTones(double tones) override { mDarkTones = tones; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    double mLightsTones = 0.0;
    double mDarkTones = 0.0;
};

} // namespace OvZel
