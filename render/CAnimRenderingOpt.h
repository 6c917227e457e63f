#pragma once

#include "core/TZelStrongPtr.h"
#include "render/CCompressionOpt.h"
#include "render/CRenderingOpt.h"
#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelViewOpt.h>

namespace OvZel {

/// The options of a view; the element "Options".
class CAnimRenderingOpt : public TZelXMLFrontierObjLink<IZelViewOpt> {
public:
    /// The owner may be null.
    explicit CAnimRenderingOpt(IZelObjectLink* owner);

    const IZelRenderingOpt* getRenderingOpt() const override { return mRendering.getPtr(); }
    IZelRenderingOpt* getRenderingOpt() override { return mRendering.getPtr(); }
    const IZelCompressionOpt* getCompressionOpt() const override { return &mCompression; }
    IZelCompressionOpt* getCompressionOpt() override { return &mCompression; }

    /// Uses the child "Options" that is there; of its children only our two are replaced.
    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelStrongPtr<CRenderingOpt> mRendering;
    CCompressionOpt mCompression;
};

} // namespace OvZel
