#pragma once

#include "xml/TZelXMLFrontierObjLinkRef.h"
#include "xml/tree/CXMLTag.h"

#include <zel/IZelKeyFrame.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The value of a channel at one time.
class CZelKeyFrame : public TZelXMLFrontierObjLinkRef<IZelKeyFrame> {
public:
    enum eValueType : std::int32_t {
        eCoord3D,
        eColor,
        eDouble,
        eBoolean,
        eInteger,
        eDate,
        eUUID,
        eEnum
    };

    explicit CZelKeyFrame(IZelObjectLinkRef* owner) : TZelXMLFrontierObjLinkRef(owner) {}

    std::int32_t getValueType() const override { return mValueType; }
    void setValueType(std::int32_t type) override { mValueType = type; }
    const uValue& getValue() const override { return mValue; }
    void setValue(const uValue& value) override { mValue = value; }
    std::int32_t getTime() const override { return mTime; }
    void setTime(std::int32_t time) override { mTime = time; }
    bool isVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    std::int32_t getInterpolationType() const override { return mInterpolationType; }
    void setInterpolationType(std::int32_t type) override { mInterpolationType = type; }
    const uValue& getCPBefore() const override { return mCPBefore; }
    void setCPBefore(const uValue& value) override { mCPBefore = value; }
    const uValue& getCPAfter() const override { return mCPAfter; }
    void setCPAfter(const uValue& value) override { mCPAfter = value; }
    bool getAreLocked() const override { return mAreLocked; }
    void setAreLocked(bool locked) override { mAreLocked = locked; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void addValue(const CZelXMLAdd& out, OrvaneXML::CXMLTag tag, const uValue& value) const;
    void getValue(const CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag tag,
                  uValue& value) const;

    std::int32_t mTime = 0;
    std::int32_t mValueType = eInteger;
    uValue mValue;
    bool mVisible = true;
    std::int32_t mInterpolationType = 0;
    uValue mCPBefore;
    uValue mCPAfter;
    bool mAreLocked = true;
};

} // namespace OvZel
