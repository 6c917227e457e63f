#pragma once

#include "core/TObject2Mgr.h"
#include "geometry/CZelQuad.h"
#include "objects/CZelBillboard.h"
#include "objects/CZelTexture.h"
#include "xml/TZelXMLFrontierObjLinkRef.h"

#include <zel/IZelBBMgrData.h>

namespace OvZel {

/// One billboard of the document.
class CZelBBMgrData final : public TZelXMLFrontierObjLinkRef<IZelBBMgrData> {
public:
    using CQuads = TObject2Mgr<CZelQuad, IZelQuad>;

    /// The owner may be null.
    explicit CZelBBMgrData(IZelObjectLinkRef* owner);

    const IZelBillboard* getBillboard() const override { return &mBillboard; }
    CZelBillboard* getBillboard() override { return &mBillboard; }
    const TZelObjectMgr<IZelQuad>* getQuads() const override { return mQuads.get(); }
    CQuads* getQuads() override { return mQuads.get(); }
    std::uint64_t getProperty() const override { return mProperty; }
    void setProperty(std::uint64_t property) override { mProperty = property; }
    const IZelTexture* getTexture() const override { return &mTexture; }
    CZelTexture* getTexture() override { return &mTexture; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelBillboard mBillboard;
    TZelComPtr<CQuads> mQuads;
    std::uint64_t mProperty = 0;
    CZelTexture mTexture;
};

} // namespace OvZel
