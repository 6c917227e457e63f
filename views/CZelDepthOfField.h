#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelDepthOfField.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// What a view shows sharp.
class CZelDepthOfField : public TZelXMLFrontierObjLink<IZelDepthOfField> {
public:
    explicit CZelDepthOfField(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    const CZelPoint& getClearnessPoint() const override { return mClearnessPoint; }
    void setClearnessPoint(const CZelPoint& point) override { mClearnessPoint = point; }
    double getClearnessDistanceInverse() const override { return mClearnessDistanceInverse; }
    void setClearnessDistanceInverse(double value) override { mClearnessDistanceInverse = value; }
    double getClearnessSizeInverse() const override { return mClearnessSizeInverse; }
    void setClearnessSizeInverse(double value) override { mClearnessSizeInverse = value; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mUsed = false;
    std::int32_t mType = 0;
    CZelPoint mClearnessPoint;
    double mClearnessDistanceInverse = 0.0;
    double mClearnessSizeInverse = 0.0;
};

} // namespace OvZel
