#pragma once

#include "core/TObject2Mgr.h"
#include "core/TZelMember.h"
#include "render/CAnimRenderingOpt.h"
#include "views/CAnimation.h"

#include <zel/IZelAnimation.h>

namespace OvZel {

/// A group of camera paths; the element "Animation".
class CZelAnimation : public TZelXMLFrontierObjLinkRef<IZelAnimation> {
public:
    using CPaths = TObject2Mgr<CAnimation, IZelCameraPath>;

    explicit CZelAnimation(IZelObjectLinkRef* owner)
        : TZelXMLFrontierObjLinkRef(owner), mPaths(new CPaths(this)), mViewOptions(this)
    {
    }

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name != nullptr ? std::string(name) : ""; }
    const CPaths* getPaths() const override { return mPaths.get(); }
    CPaths* getPaths() override { return mPaths.get(); }
    std::int32_t getCurrentPathIndex() const override { return mCurrentPath; }
    void setCurrentPath(std::int32_t index) override;
    const CAnimRenderingOpt* getViewOptions() const override { return &mViewOptions; }
    CAnimRenderingOpt* getViewOptions() override { return &mViewOptions; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::string mName;
    TZelComPtr<CPaths> mPaths;
    TZelMember<CAnimRenderingOpt> mViewOptions;
    std::int32_t mCurrentPath = 0;
};

} // namespace OvZel
