#pragma once

#include "animation/CZelKeyFrame.h"
#include "core/TObject2Mgr.h"
#include "core/TZelComPtr.h"
#include "core/TZelStrongPtr.h"

#include <zel/IZelInterpolatedValue.h>

namespace OvZel {

/// One animated channel of an object.
class CZelInterpolatedValue : public TZelXMLFrontierObjLinkRef<IZelInterpolatedValue> {
public:
    using CKeyFrames = TObject2Mgr<CZelKeyFrame, IZelKeyFrame>;

    explicit CZelInterpolatedValue(IZelObjectLinkRef* owner)
        : TZelXMLFrontierObjLinkRef(owner), mKeyFrames(new CKeyFrames(this)),
          mDefaultValue(new CZelKeyFrame(owner))
    {
    }

    std::int32_t getChannel() const override { return mChannel; }
    void setChannel(std::int32_t channel) override { mChannel = channel; }
    const CKeyFrames* getKeyFrames() const override { return mKeyFrames.get(); }
    CKeyFrames* getKeyFrames() override { return mKeyFrames.get(); }
    const CZelKeyFrame* getDefaultValue() const override { return mDefaultValue.getPtr(); }
    CZelKeyFrame* getDefaultValue() override { return mDefaultValue.getPtr(); }
    bool getLoop() const override { return mLoop; }
    void setLoop(bool loop) override { mLoop = loop; }
    std::int32_t getNbLoops() const override { return mNbLoops; }
    void setNbLoops(std::int32_t nbLoops) override { mNbLoops = nbLoops; }
    const CZelUUID& getPathId() const override { return mPathId; }
    void setPathId(const CZelUUID& id) override { mPathId = id; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelComPtr<CKeyFrames> mKeyFrames;
    TZelStrongPtr<CZelKeyFrame> mDefaultValue;
    std::int32_t mChannel = 0;
    bool mLoop = false;
    std::int32_t mNbLoops = 0;
    CZelUUID mPathId;
};

} // namespace OvZel
