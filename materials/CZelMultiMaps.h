#pragma once

#include "core/COwnerLink.h"
#include "core/TObjectMgr.h"
#include "core/TZelFrontier.h"
#include "materials/CMapUrls.h"

#include <zel/IZelMultiMaps.h>

namespace OvZel {

/// The images of one layer.
class CZelMultiMaps final : public TZelFrontier<IZelMultiMaps> {
public:
    /// Warnings go to the document of the owner. It may be null: a warning then raises.
    explicit CZelMultiMaps(IZelObjectLink* owner = nullptr) : mOwner(owner) {}

    const char* getURL(std::int32_t kind) const override;
    void setURL(std::int32_t kind, const char* url) override;

    void clear() { mUrls.clear(); }
    void copyFrom(const CZelMultiMaps& source) { mUrls = source.mUrls; }

    /// Appends a copy of each entry of the source.
    static void CopyMultiMapsMgr(TZelObjectMgr<IZelMultiMaps>& destination,
                                 TZelObjectMgr<IZelMultiMaps>& source);

private:
    void warning(const char* text) const;

    COwnerLink mOwner;
    CMapUrls mUrls;
};

/// A list of map tables that warn through the owner of the list.
class CMultiMapsMgr : public TObjectMgr<CZelMultiMaps, IZelMultiMaps> {
public:
    using TObjectMgr::TObjectMgr;

protected:
    std::unique_ptr<CZelMultiMaps> make() override
    {
        return std::make_unique<CZelMultiMaps>(getBase());
    }
};

} // namespace OvZel
