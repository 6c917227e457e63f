#pragma once

#include "animation/CZelInterpolatedValue.h"

#include <zel/IZelAnimatedElement.h>

namespace OvZel {

/// What is animated of one object.
class CZelAnimatedElement : public TZelXMLFrontierObjLinkRef<IZelAnimatedElement> {
public:
    using CValues = TObject2Mgr<CZelInterpolatedValue, IZelInterpolatedValue>;

    explicit CZelAnimatedElement(IZelObjectLinkRef* owner)
        : TZelXMLFrontierObjLinkRef(owner), mValues(new CValues(this))
    {
    }

    const CZelUUID& getId() const override { return mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    std::int32_t getElementType() const override { return mElementType; }
    void setElementType(std::int32_t type) override { mElementType = type; }
    const CValues* getInterpolatedValues() const override { return mValues.get(); }
    CValues* getInterpolatedValues() override { return mValues.get(); }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mElementType = 0;
    CZelUUID mId;
    TZelComPtr<CValues> mValues;
};

} // namespace OvZel
