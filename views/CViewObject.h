#pragma once

#include "core/CRange.h"
#include "views/TZelViewBasic.h"

#include <zel/IZelViewObject.h>

#include <algorithm>

namespace OvZel {

/// A turntable around a point.
class CViewObject : public TZelViewBasic<IZelViewObject> {
public:
    static constexpr CRange kFocal{1.0, 180.0};
    static constexpr std::int32_t kMostHorizontal = 360;
    static constexpr std::int32_t kMostVertical = 180;

    explicit CViewObject(IZelObjectLinkRef* owner) : TZelViewBasic(owner)
    {
        setName("Vue objet 1");
    }

    std::int32_t getViewFlags() const override { return mViewFlags; }
    void setViewFlags(std::int32_t flags) override { mViewFlags = flags; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override { mFocal = kFocal.clip(focal); }
    const CZelPoint& getCenter() const override { return mCenter; }
    void setCenter(const CZelPoint& point) override { mCenter = point; }
    double getRadius() const override { return mRadius; }
    void setRadius(double radius) override { mRadius = radius >= 0.0 ? radius : 0.0; }
    std::int32_t getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(std::int32_t angle) override
    {
        mHorizontalAngle = std::clamp(angle, 0, kMostHorizontal);
    }
    std::int32_t getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(std::int32_t angle) override
    {
        mVerticalAngle = std::clamp(angle, 0, kMostVertical);
    }
    std::uint32_t getHorizontalStep() const override { return mHorizontalStep; }
    void setHorizontalStep(std::uint32_t step) override { mHorizontalStep = std::max(step, 1U); }
    std::uint32_t getVerticalStep() const override { return mVerticalStep; }
    void setVerticalStep(std::uint32_t step) override { mVerticalStep = std::max(step, 1U); }
    std::int32_t getHorizontalShift() const override { return mHorizontalShift; }
    void setHorizontalShift(std::int32_t shift) override
    {
        mHorizontalShift = std::clamp(shift, 0, kMostHorizontal);
    }
    std::int32_t getVerticalShift() const override { return mVerticalShift; }
    void setVerticalShift(std::int32_t shift) override { mVerticalShift = shift; }
    double getHorizontalStart() const override { return mHorizontalStart; }
    void setHorizontalStart(double start) override { mHorizontalStart = start; }
    double getVerticalStart() const override { return mVerticalStart; }
    void setVerticalStart(double start) override { mVerticalStart = start; }
    std::int32_t getOriginAngle() const override { return mOriginAngle; }
    void setOriginAngle(std::int32_t angle) override { mOriginAngle = angle; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mViewFlags = 2;
    double mFocal = 50.0;
    CZelPoint mCenter{50.0, 50.0, 50.0};
    double mRadius = 110.0;
    std::int32_t mHorizontalAngle = 360;
    std::int32_t mVerticalAngle = 180;
    std::uint32_t mHorizontalStep = 10;
    std::uint32_t mVerticalStep = 10;
    std::int32_t mHorizontalShift = 0;
    std::int32_t mVerticalShift = 0;
    double mHorizontalStart = 270.0;
    double mVerticalStart = 0.0;
    std::int32_t mOriginAngle = -90;
};

} // namespace OvZel
