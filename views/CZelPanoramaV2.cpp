#include "views/CZelPanoramaV2.h"

#include <set>

namespace OvZel {

CZelPanoramaV2::CZelPanoramaV2(IZelObjectLinkRef* owner)
    : TZelViewBasic(owner), mNodes(new CNodes(this)), mLinks(new CLinks(this)),
      mParallelViews(new CIds(this))
{
    setName("PanoramaV2");
}

void CZelPanoramaV2::removeDanglingLinks()
{
    std::set<CZelUUID> nodes;
    for (std::int32_t i = 0; i < mNodes->size(); ++i)
        nodes.insert(*mNodes->at(i)->getId());
    mLinks->removeIf([&](const CZelPanoLinkV2& link) {
        return nodes.count(link.getStart()) == 0 || nodes.count(link.getEnd()) == 0;
    });
}

} // namespace OvZel
