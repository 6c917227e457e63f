#pragma once

#include "core/CRange.h"
#include "views/TZelViewBasic.h"

#include <zel/IZelSequence.h>

namespace OvZel {

/// A camera shot of a scenario.
class CZelSequence : public TZelViewBasic<IZelSequence> {
public:
    static constexpr CRange kFocal{0.0, 180.0};

    explicit CZelSequence(IZelObjectLinkRef* owner) : TZelViewBasic(owner) {}

    std::int32_t getStartFrame() const override { return mStartFrame; }
    void setStartFrame(std::int32_t frame) override { mStartFrame = frame; }
    std::int32_t getEndFrame() const override { return mEndFrame; }
    void setEndFrame(std::int32_t frame) override { mEndFrame = frame; }
    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& point) override { mPosition = point; }
    std::int32_t getTargetType() const override { return mTargetType; }
    void setTargetType(std::int32_t type) override
    {
        mTargetType = type < 0 || type > 3 ? 0 : type;
    }
    const CZelPoint& getTarget() const override { return mTarget; }
    void setTarget(const CZelPoint& point) override { mTarget = point; }
    double getTargetDistance() const override { return mTargetDistance; }
    void setTargetDistance(double distance) override { mTargetDistance = distance; }
    double getHorizontalAngle() const override { return mHorizontalAngle; }
    void setHorizontalAngle(double angle) override { mHorizontalAngle = angle; }
    double getVerticalAngle() const override { return mVerticalAngle; }
    void setVerticalAngle(double angle) override { mVerticalAngle = angle; }
    const CZelPoint& getPathTangent() const override { return mPathTangent; }
    void setPathTangent(const CZelPoint& tangent) override { mPathTangent = tangent; }
    bool getFlag0() const override { return (mViewFlags & 1) != 0; }
    void setFlag0() override { mViewFlags |= 1; }
    bool getFlag1() const override { return (mViewFlags & 2) != 0; }
    void setFlag1(bool set) override { mViewFlags = set ? mViewFlags | 2 : mViewFlags & ~2; }
    std::int32_t getViewFlags() const override { return mViewFlags; }
    void setViewFlags(std::int32_t flags) override { mViewFlags = flags; }
    double getRoll() const override { return mRoll; }
    void setRoll(double roll) override { mRoll = roll; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    const CZelUUID& getObjectId() const override { return mObjectId; }
    void setObjectId(const CZelUUID& id) override { mObjectId = id; }
    bool getArchitectFlag() const override { return mArchitectFlag; }
    void setArchitectFlag(bool flag) override { mArchitectFlag = flag; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    /// Takes the identifier of the file whatever the frame says: animated elements find their
    /// sequence by it.
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mStartFrame = 0;
    std::int32_t mEndFrame = 250;
    CZelPoint mPosition{50.0, 50.0, -60.0};
    CZelPoint mTarget{50.0, 50.0, 50.0};
    std::int32_t mViewFlags = 2;
    double mRoll = 0.00001;
    double mFocal = 50.0;
    std::int32_t mTargetType = 0;
    double mTargetDistance = 100.0;
    double mHorizontalAngle = 0.0;
    double mVerticalAngle = 0.0;
    CZelPoint mPathTangent{0.0, 0.0, 1.0};
    CZelUUID mObjectId;
    bool mArchitectFlag = false;
};

} // namespace OvZel
