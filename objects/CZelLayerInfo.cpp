#include "objects/CZelLayerInfo.h"

namespace OvZel {

namespace {

constexpr CZelUUID kNoLayer;

const char* textOrEmpty(const char* text)
{
    return text != nullptr ? text : "";
}

} // namespace

const CZelUUID& CZelLayerInfo::getDefaultLayer(const char* objectClass) const
{
    const auto found = mDefaultLayers.find(textOrEmpty(objectClass));
    return found != mDefaultLayers.end() ? found->second : kNoLayer;
}

void CZelLayerInfo::setDefaultLayer(const char* objectClass, const CZelUUID& id)
{
    mDefaultLayers[textOrEmpty(objectClass)] = id;
}

} // namespace OvZel
