#include "views/CZelViewInfo.h"

namespace OvZel {

CZelViewInfo::CZelViewInfo(IZelObjectLinkRef* owner)
    : TZelXMLCOMObjLink(owner), mLightsGroups(new CIds(this)), mNeonShaders(new CIds(this)),
      mLayers(new CIds(this))
{
}

} // namespace OvZel
