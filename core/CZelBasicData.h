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
/// needs them. The identifier waits for its own, since most objects are read from a file, which
/// has one for them.
class CZelBasicData : public CZelEmptyBasicData {
public:
    const CZelUUID* getId() const override;
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
    using CUserData = std::map<CZelUUID, TZelComPtr<IUnknown>>;

    struct CParts {
        CZelUUID id;
        bool hasId = false;
        std::uint32_t uiValue = 0;
        std::string name;
        std::unique_ptr<CUserData> userData;
    };

    CParts& parts() const;

    mutable std::unique_ptr<CParts> mParts;
};

} // namespace OvZel
