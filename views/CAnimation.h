#pragma once

#include "core/TObjectMgr.h"
#include "core/TSimpleMgr.h"
#include "core/TZelComPtr.h"
#include "views/CCamKey.h"
#include "views/CZelViewInfo.h"
#include "xml/TZelXMLFrontierObjLinkRef.h"

#include <zel/IZelCameraPath.h>

#include <string>

namespace OvZel {

/// A camera path; the element "Camera.Path".
class CAnimation : public TZelXMLFrontierObjLinkRef<IZelCameraPath> {
public:
    using CPoints = TSimpleMgr<CZelPoint>;
    using CKeys = TObjectMgr<CCamKey, IZelCamKey>;

    explicit CAnimation(IZelObjectLinkRef* owner);

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name != nullptr ? std::string(name) : ""; }
    bool getViewFlag() const override { return mViewFlag; }
    void setViewFlag(bool flag) override { mViewFlag = flag; }
    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getDuration() const override { return mDuration; }
    void setDuration(double duration) override;
    std::int32_t getNbXImage() const override { return mNbXImage; }
    void setNbXImage(std::int32_t nbImages) override;
    bool getSpeedOn() const override { return mSpeedOn; }
    void setSpeedOn(bool on) override { mSpeedOn = on; }
    double getSpeed() const override { return mSpeed; }
    void setSpeed(double speed) override { mSpeed = speed; }
    bool getPathClosed() const override { return mPathClosed; }
    void setPathClosed(bool closed) override { mPathClosed = closed; }
    const CPoints* getPoints() const override { return mPoints.get(); }
    CPoints* getPoints() override { return mPoints.get(); }
    const CKeys* getKeys() const override { return mKeys.get(); }
    CKeys* getKeys() override { return mKeys.get(); }
    const CZelViewInfo* getViewInfo() const override { return mViewInfo.get(); }
    CZelViewInfo* getViewInfo() override { return mViewInfo.get(); }
    double getCurrentTime() const override { return mCurrentTime; }
    void setCurrentTime(double time) override { mCurrentTime = time; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void addPoints(const CZelXMLAdd& out) const;
    void getPoints(CZelXMLIO& io, const CZelXMLGet& in);

    std::string mName = "Sequence 0";
    bool mViewFlag = false;
    bool mActive = true;
    double mDuration = 4.0;
    std::int32_t mNbXImage = 0;
    bool mSpeedOn = false;
    double mSpeed = 0.0;
    bool mPathClosed = true;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<CKeys> mKeys;
    TZelComPtr<CZelViewInfo> mViewInfo;
    double mCurrentTime = 0.0;
};

} // namespace OvZel
