#include "core/CZelBasicData.h"

#include "core/generateId.h"

namespace OvZel {

CZelBasicData::CParts& CZelBasicData::parts() const
{
    if (!mParts)
        mParts = std::make_unique<CParts>();
    return *mParts;
}

const CZelUUID* CZelBasicData::getId() const
{
    CParts& all = parts();
    if (!all.hasId) {
        all.id = generateId();
        all.hasId = true;
    }
    return &all.id;
}

void CZelBasicData::setId(const CZelUUID* id)
{
    CParts& all = parts();
    all.id = id != nullptr ? *id : CZelUUID();
    all.hasId = true;
}

void CZelBasicData::setName(const char* name)
{
    if (name == nullptr)
        return warn("CZelBasicData::setName - inName is NULL");
    parts().name = name;
}

IUnknown* CZelBasicData::getUserData(const CZelUUID* key) const
{
    if (!mParts || !mParts->userData || key == nullptr)
        return nullptr;
    const auto found = mParts->userData->find(*key);
    return found != mParts->userData->end() ? found->second.get() : nullptr;
}

void CZelBasicData::setUserData(const CZelUUID* key, IUnknown* data)
{
    if (key == nullptr)
        return;
    TZelComPtr<IUnknown> taken(data);
    CParts& all = parts();
    if (!all.userData)
        all.userData = std::make_unique<CUserData>();
    // The old value is released behind the assignment, when the map is whole again.
    std::swap((*all.userData)[*key], taken);
}

} // namespace OvZel
