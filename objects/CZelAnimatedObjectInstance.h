#pragma once

#include "objects/CZelZelObjectInstance.h"

#include <zel/IZelAnimatedObjectInstance.h>

namespace OvZel {

/// What an instance of an animated object has of its own.
class CZelAnimatedObjectInstance final : public CZelZelObjectInstance,
                                         public TZelFrontier<IZelAnimatedObjectInstance> {
public:
    CZelAnimatedObjectInstance(CZelObjectInstance& owner, CZelXMLIO& io, const CZelXMLGet& data);

    std::int32_t getCurrentFrame() const override { return mCurrentFrame; }
    void setCurrentFrame(std::int32_t frame) override { mCurrentFrame = frame; }
    std::int32_t getCurrentTake() const override { return mCurrentTake; }
    void setCurrentTake(std::int32_t take) override { mCurrentTake = take; }
    std::int32_t getRealDuration() const override { return mRealDuration; }
    void setRealDuration(std::int32_t duration) override { mRealDuration = duration; }
    std::int32_t getStartFrame() const override { return mStartFrame; }
    void setStartFrame(std::int32_t frame) override { mStartFrame = frame; }
    const TZelObjectMgr<IZelProperty>* getOverloadedProperties() const override
    {
        return mOverloadedProperties.get(&instance());
    }
    CProperties* getOverloadedProperties() override
    {
        return mOverloadedProperties.get(&instance());
    }
    const IZelObjectInstance* getObjectInstance() const override { return &instance(); }
    IZelObjectInstance* getObjectInstance() override { return &instance(); }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

private:
    std::int32_t mCurrentFrame = 0;
    std::int32_t mCurrentTake = 0;
    std::int32_t mRealDuration = 0;
    std::int32_t mStartFrame = 0;
    TLazyMgr<CProperties> mOverloadedProperties;
};

} // namespace OvZel
