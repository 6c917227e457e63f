#pragma once

#include "core/CBaseObjectMgr.h"
#include "materials/CProperty.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelGround.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// A plane below the scene with its own material.
class CZelGround : public TZelXMLCOMObjLinkRef<IZelGround> {
public:
    /// The owner may be null.
    explicit CZelGround(IZelObjectLinkRef* owner);

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    const CProperty* getProperty() const override { return mProperty.get(); }
    CProperty* getProperty() override { return mProperty.get(); }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    double mHeight = -10.0;
    // The material keeps its owner, and a part must not keep its whole: this small object stands
    // between the two.
    TZelComPtr<CBaseObjectMgr> mPropertyOwner;
    TZelComPtr<CProperty> mProperty;
};

} // namespace OvZel
