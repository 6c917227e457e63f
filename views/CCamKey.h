#pragma once

#include "core/CRange.h"
#include "core/TZelFrontier.h"

#include <zel/IZelCamKey.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// A key of a camera path.
class CCamKey final : public TZelFrontier<IZelCamKey> {
public:
    static constexpr CRange kPitch{0.0, 360.0};
    static constexpr CRange kAnticipation{0.0, 1.0};
    static constexpr CRange kBezierT{0.0, 1.0};

    double getPitch() const override { return mPitch; }
    void setPitch(double pitch) override { mPitch = kPitch.clip(pitch); }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override { mFocal = focal; }
    std::int32_t getKeyType() const override { return mKeyType; }
    void setKeyType(std::int32_t type) override { mKeyType = type; }
    std::int32_t getFadingDuration() const override { return mFadingDuration; }
    void setFadingDuration(std::int32_t duration) override { mFadingDuration = duration; }
    std::int32_t getFadingImages() const override { return mFadingImages; }
    void setFadingImages(std::int32_t nbImages) override { mFadingImages = nbImages; }
    double getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(double angle) override { mHorizontalAngle = angle; }
    double getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(double angle) override { mVerticalAngle = angle; }
    double getAnticipation() const override { return mAnticipation; }
    void setAnticipation(double anticipation) override
    {
        mAnticipation = kAnticipation.clip(anticipation);
    }
    std::int32_t getBezierSection() const override { return mBezierSection; }
    void setBezierSection(std::int32_t section) override
    {
        mBezierSection = section < 0 ? 0 : section;
    }
    double getBezierT() const override { return mBezierT; }
    void setBezierT(double t) override { mBezierT = kBezierT.clip(t); }
    std::int32_t getBezierTransition() const override { return mBezierTransition; }
    void setBezierTransition(std::int32_t transition) override
    {
        mBezierTransition = transition < 0 ? 0 : transition;
    }
    double getBezierTransitionT() const override { return mBezierTransitionT; }
    void setBezierTransitionT(double t) override { mBezierTransitionT = kBezierT.clip(t); }
    const CZelPoint& getTarget() const override { return mTarget; }
    void setTarget(const CZelPoint& point) override { mTarget = point; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    double mPitch = 0.0;
    double mFocal = 0.0;
    std::int32_t mKeyType = 0;
    std::int32_t mFadingDuration = 0;
    std::int32_t mFadingImages = 0;
    double mHorizontalAngle = 0.0;
    double mVerticalAngle = 0.0;
    double mAnticipation = 0.0;
    std::int32_t mBezierSection = 0;
    double mBezierT = 0.0;
    std::int32_t mBezierTransition = 0;
    double mBezierTransitionT = 0.0;
    CZelPoint mTarget;
};

} // namespace OvZel
