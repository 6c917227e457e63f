#include "render/CAnimRenderingOpt.h"

namespace OvZel {

CAnimRenderingOpt::CAnimRenderingOpt(IZelObjectLink* owner)
    : TZelXMLFrontierObjLink(owner), mRendering(new CRenderingOpt(this))
{
}

} // namespace OvZel
