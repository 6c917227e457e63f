#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelVignettingFilter.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// Darker corners of the finished picture; the element "Vignetting.Filter".
class CZelVignettingFilter : public TZelXMLFrontierObjLink<IZelVignettingFilter> {
public:
    explicit CZelVignettingFilter(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getValue() const override { return mValue; }
    void setValue(double value) override { mValue = value; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    double mValue = 1.0;
};

} // namespace OvZel
