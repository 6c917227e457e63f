#include "render/CZelEngineOptions.h"

namespace OvZel {

CZelEngineOptions::CZelEngineOptions(IZelObjectLink* owner)
    : TZelFrontierObjLink(owner), mDevValues(new TSimpleMgr<double>(this))
{
}

} // namespace OvZel
