#pragma once

#include "core/TZelMember.h"
#include "core/query.h"
#include "render/CAnimRenderingOpt.h"
#include "views/CZelViewInfo.h"
#include "xml/TZelXMLCOMObjLink.h"

#include <zel/IZelViewBasic.h>

namespace OvZel {

/// The common base of the views: a view information and view options beside what I adds.
template <class I>
class TZelViewBasic : public TZelXMLCOMObjLink<I> {
public:
    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override
    {
        return query(static_cast<I*>(this),
                     iid == IZelViewBasic::sIID ? IZelViewBasic::sIID : IZelBasic::sIID, iid, out);
    }

    const CZelViewInfo* getViewInfo() const override { return mViewInfo.get(); }
    CZelViewInfo* getViewInfo() override { return mViewInfo.get(); }
    const CAnimRenderingOpt* getViewOptions() const override { return &mViewOptions; }
    CAnimRenderingOpt* getViewOptions() override { return &mViewOptions; }

protected:
    /// The owner may be null.
    explicit TZelViewBasic(IZelObjectLinkRef* owner)
        : TZelXMLCOMObjLink<I>(owner), mViewInfo(new CZelViewInfo(owner)), mViewOptions(this)
    {
    }

private:
    TZelComPtr<CZelViewInfo> mViewInfo;
    TZelMember<CAnimRenderingOpt> mViewOptions;
};

} // namespace OvZel
