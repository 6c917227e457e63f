#include "core/CZelBasicData.h"

#include "core/generateId.h"

namespace OvZel {

CZelBasicData::CParts& CZelBasicData::parts() const
{
    if (!mParts) {
        auto made = std::make_unique<CParts>();
        made->id = generateId();
        mParts = std::move(made);
    }
    return *mParts;
}

void CZelBasicData::setId(const CZelUUID* id)
{
    parts().id = id != nullptr ? *id : CZelUUID();
}

void CZelBasicData::setName(const char* name)
{
    if (name == nullptr)
        return warn("CZelBasicData::setName - inName is NULL");
    parts().name = name;
}

IUnknown* CZelBasicData::getUserData(const CZelUUID* key) const
{
    if (!mParts || key == nullptr)
        return nullptr;
    const auto found = mParts->userData.find(*key);
    return found != mParts->userData.end() ? found->second.get() : nullptr;
}

void CZelBasicData::setUserData(const CZelUUID* key, IUnknown* data)
{
    if (key == nullptr)
        return;
    TZelComPtr<IUnknown> taken(data);
    // The old value is released behind the assignment, when the map is whole again.
    std::swap(parts().userData[*key], taken);
}

} // namespace OvZel
