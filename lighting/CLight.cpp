#include "lighting/CLight.h"

#include <algorithm>

namespace OvZel {

CLight::CLight(IZelObjectLinkRef* owner)
    : TZelCOMObjLinkRef(owner), mLightsGroups(new CLightsGroups(this))
{
}

void CLight::setMapSize(std::int32_t size)
{
    mMapSize = std::clamp(size, 0, kMapSizeMost);
}

void CLight::setTargetType(std::int32_t type)
{
    mTargetType = static_cast<std::uint32_t>(type) <= kTargetTypeMost ? type : 0;
}

} // namespace OvZel
