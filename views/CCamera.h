#pragma once

#include "core/CRange.h"
#include "core/TZelMember.h"
#include "views/CZelInsertionObject.h"
#include "views/TZelViewBasic.h"

#include <zel/IZelCamera.h>

namespace OvZel {

/// A perspective view.
class CCamera : public TZelViewBasic<IZelCamera> {
public:
    static constexpr CRange kFocal{0.0, 180.0};

    explicit CCamera(IZelObjectLinkRef* owner);

    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& point) override { mPosition = point; }
    const CZelPoint& getTarget() const override { return mTarget; }
    void setTarget(const CZelPoint& point) override { mTarget = point; }
    bool getFlag0() const override { return (mViewFlags & 1) != 0; }
    void setFlag0() override { mViewFlags |= 1; }
    bool getFlag1() const override { return (mViewFlags & 2) != 0; }
    void setFlag1(bool set) override { mViewFlags = set ? mViewFlags | 2 : mViewFlags & ~2; }
    double getRoll() const override { return mRoll; }
    void setRoll(double roll) override;
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    std::int32_t getViewFlags() const override { return mViewFlags; }
    void setViewFlags(std::int32_t flags) override { mViewFlags = flags; }
    const CZelInsertionObject* getInsertionObject() const override { return &mInsertionObject; }
    CZelInsertionObject* getInsertionObject() override { return &mInsertionObject; }
    std::int32_t getTargetType() const override { return mTargetType; }
    void setTargetType(std::int32_t type) override { mTargetType = type == 1 ? 1 : 0; }
    const CZelUUID& getObjectId() const override { return mObjectId; }
    void setObjectId(const CZelUUID& id) override { mObjectId = id; }
    const CZelPoint& getUp() const override { return mUp; }
    void setUp(const CZelPoint& up) override
    {
        mUp = up;
        mUpIsSet = true;
    }
    bool getUpIsSet() const override { return mUpIsSet; }
    bool getArchitectFlag() const override { return mArchitectFlag; }
    void setArchitectFlag(bool flag) override { mArchitectFlag = flag; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelPoint mPosition{50.0, 50.0, -60.0};
    CZelPoint mTarget{50.0, 50.0, 50.0};
    CZelPoint mUp{0.0, 1.0, 0.0};
    std::int32_t mViewFlags = 2;
    double mRoll = 0.00001;
    double mFocal = 50.0;
    TZelMember<CZelInsertionObject> mInsertionObject{this};
    std::int32_t mTargetType = 0;
    CZelUUID mObjectId;
    bool mUpIsSet = false;
    bool mArchitectFlag = false;
};

} // namespace OvZel
