#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelClippingBox.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The box outside which a view shows nothing.
class CZelClippingBox : public TZelXMLFrontierObjLink<IZelClippingBox> {
public:
    explicit CZelClippingBox(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    const CZelPoint& getMinimum() const override { return mMinimum; }
    void setMinimum(const CZelPoint& point) override { mMinimum = point; }
    const CZelPoint& getMaximum() const override { return mMaximum; }
    void setMaximum(const CZelPoint& point) override
    {
        mMaximum = point;
        mPivot.z = mMaximum.z + 1.0;
    }
    bool getVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const CZelPoint& getPivot() const override { return mPivot; }
    void setPivot(const CZelPoint& point) override { mPivot = point; }
    double getAngle() const override { return mAngle; }
    void setAngle(double angle) override { mAngle = angle; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelPoint mMinimum;
    CZelPoint mMaximum;
    CZelPoint mPivot;
    double mAngle = 0.0;
    bool mVisible = false;
    bool mActive = false;
};

} // namespace OvZel
