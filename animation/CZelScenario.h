#pragma once

#include "animation/CZelAnimatedElement.h"
#include "animation/CZelScenarioTimeGuide.h"
#include "animation/CZelSequence.h"
#include "animation/CZelSnd.h"

#include <zel/IZelScenario.h>

#include <string>

namespace OvZel {

/// A time line.
class CZelScenario : public TZelXMLFrontierObjLinkRef<IZelScenario> {
public:
    using CSequences = TObject2Mgr<CZelSequence, IZelSequence>;
    using CElements = TObject2Mgr<CZelAnimatedElement, IZelAnimatedElement>;
    using CSnds = TObject2Mgr<CZelSnd, IZelSnd>;
    using CTimeGuides = TObject2Mgr<CZelScenarioTimeGuide, IZelScenarioTimeGuide>;

    explicit CZelScenario(IZelObjectLinkRef* owner)
        : TZelXMLFrontierObjLinkRef(owner), mSequences(new CSequences(this)),
          mAnimatedElements(new CElements(this)), mSnds(new CSnds(this)),
          mTimeGuides(new CTimeGuides(this))
    {
    }

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name != nullptr ? std::string(name) : ""; }
    const CSequences* getSequences() const override { return mSequences.get(); }
    CSequences* getSequences() override { return mSequences.get(); }
    const CElements* getAnimatedElements() const override { return mAnimatedElements.get(); }
    CElements* getAnimatedElements() override { return mAnimatedElements.get(); }
    std::int32_t getCurrentFrame() const override { return mCurrentFrame; }
    void setCurrentFrame(std::int32_t frame) override { mCurrentFrame = frame; }
    std::int32_t getCurrentSequence() const override { return mCurrentSequence; }
    void setCurrentSequence(std::int32_t index) override { mCurrentSequence = index; }
    const CSnds* getSnds() const override { return mSnds.get(); }
    CSnds* getSnds() override { return mSnds.get(); }
    std::int32_t getMaxTime() const override { return mMaxTime; }
    void setMaxTime(std::int32_t time) override { mMaxTime = time; }
    std::int32_t getFPS() const override { return mFPS; }
    void setFPS(std::int32_t fps) override { mFPS = fps; }
    void setStartVisibleTime(std::int32_t time) override { mStartVisibleTime = time; }
    std::int32_t getStartVisibleTime() const override { return mStartVisibleTime; }
    void setEndVisibleTime(std::int32_t time) override { mEndVisibleTime = time; }
    std::int32_t getEndVisibleTime() const override { return mEndVisibleTime; }
    const CTimeGuides* getTimeGuides() const override { return mTimeGuides.get(); }
    CTimeGuides* getTimeGuides() override { return mTimeGuides.get(); }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelComPtr<CSequences> mSequences;
    TZelComPtr<CElements> mAnimatedElements;
    std::string mName;
    std::int32_t mCurrentFrame = 0;
    std::int32_t mCurrentSequence = 0;
    std::int32_t mMaxTime = 500;
    std::int32_t mFPS = 25;
    TZelComPtr<CSnds> mSnds;
    std::int32_t mStartVisibleTime = 0;
    std::int32_t mEndVisibleTime = mMaxTime;
    TZelComPtr<CTimeGuides> mTimeGuides;
};

} // namespace OvZel
