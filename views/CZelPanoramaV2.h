#pragma once

#include "core/TComObjectMgr.h"
#include "core/TObject2Mgr.h"
#include "views/CZelPanoLinkV2.h"
#include "views/CZelPanoNodeV2.h"
#include "views/TZelViewBasic.h"

#include <zel/IZelPanoramaV2.h>

namespace OvZel {

/// A walk through the scene by fixed viewpoints.
class CZelPanoramaV2 : public TZelViewBasic<IZelPanoramaV2> {
public:
    using CNodes = TObject2Mgr<CZelPanoNodeV2, IZelPanoNodeV2>;
    using CLinks = TComObjectMgr<CZelPanoLinkV2, IZelPanoLinkV2>;
    using CIds = TObjectMgr<CZelUUIDX, CZelUUID>;

    explicit CZelPanoramaV2(IZelObjectLinkRef* owner);

    const CLinks* getLinks() const override { return mLinks.get(); }
    CLinks* getLinks() override { return mLinks.get(); }
    const CNodes* getNodes() const override { return mNodes.get(); }
    CNodes* getNodes() override { return mNodes.get(); }
    const CZelUUID& getStartNode() const override { return mStartNode; }
    void setStartNode(const CZelUUID& id) override { mStartNode = id; }
    const CZelPoint& getDirection() const override { return mDirection; }
    void setDirection(const CZelPoint& direction) override { mDirection = direction; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override { mFocal = focal; }
    const CZelUUID& getCurrentNode() const override { return mCurrentNode; }
    void setCurrentNode(const CZelUUID& id) override { mCurrentNode = id; }
    std::int32_t getFlags() const override { return mFlags; }
    void setFlags(std::int32_t flags) override { mFlags = flags; }
    const CIds* getParallelViews() const override { return mParallelViews.get(); }
    CIds* getParallelViews() override { return mParallelViews.get(); }
    const CZelPoint& getCurrentDirection() const override { return mCurrentDirection; }
    void setCurrentDirection(const CZelPoint& direction) override { mCurrentDirection = direction; }

    /// Removes every link of which an end is none of the nodes; the others keep their order. For
    /// the document, once it has read all panoramas.
    void removeDanglingLinks();

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    TZelComPtr<CNodes> mNodes;
    TZelComPtr<CLinks> mLinks;
    CZelUUID mStartNode;
    CZelPoint mDirection{0.0, 0.0, 1.0};
    double mFocal = 50.0;
    CZelUUID mCurrentNode;
    std::int32_t mFlags = 0;
    TZelComPtr<CIds> mParallelViews;
    CZelPoint mCurrentDirection{0.0, 0.0, 1.0};
};

} // namespace OvZel
