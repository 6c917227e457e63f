#pragma once

#include "core/CZelEmptyBasicData.h"
#include "core/TZelComPtr.h"

#include <zel/IUnknown.h>

#include <map>
#include <memory>
#include <string>

namespace OvZel {

/// Identifier, name, client data and the user interface's number of one object.
///
/// A mesh has a million of them that nobody asks for, so the values are made at the first call that
/// needs them, the identifier with them.
class CZelBasicData : public CZelEmptyBasicData {
public:
    const CZelUUID* getId() const override { return &parts().id; }
    void setId(const CZelUUID* id) override;
    const char* getName() const override { return mParts ? mParts->name.c_str() : ""; }
    void setName(const char* name) override;
    IUnknown* getUserData(const CZelUUID* key) const override;
    void setUserData(const CZelUUID* key, IUnknown* data) override;
    std::uint32_t getUIValue() const override { return mParts ? mParts->uiValue : 0; }
    void setUIValue(std::uint32_t value) override { parts().uiValue = value; }

protected:
    CZelBasicData() = default;
    ~CZelBasicData() = default;

private:
    struct CParts {
        CZelUUID id;
        std::string name;
        std::map<CZelUUID, TZelComPtr<IUnknown>> userData;
        std::uint32_t uiValue = 0;
    };

    CParts& parts() const;

    mutable std::unique_ptr<CParts> mParts;
};

} // namespace OvZel
