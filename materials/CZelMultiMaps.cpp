#include "materials/CZelMultiMaps.h"

#include "core/OvThrow.h"
#include "materials/copyMaps.h"

#include <cstdio>

namespace OvZel {

void CZelMultiMaps::warning(const char* text) const
{
    CZelMgrRef* target = CZelMgrRef::from(mOwner.getMgrRef());
    OvThrow::IfNULL(target);
    target->warning(text);
}

const char* CZelMultiMaps::getURL(std::int32_t kind) const
{
    if (!CMapUrls::isKind(kind)) {
        warning("CZelMultiMaps::getURL - Invalid map type");
        return nullptr;
    }
    const char* url = mUrls.get(kind);
    return url != nullptr ? url : "";
}

void CZelMultiMaps::setURL(std::int32_t kind, const char* url)
{
    if (!CMapUrls::isKind(kind))
        return warning("CZelMultiMaps::setURL - Invalid map type");
    mUrls.set(kind, url);
}

void CZelMultiMaps::CopyMultiMapsMgr(TZelObjectMgr<IZelMultiMaps>& destination,
                                     TZelObjectMgr<IZelMultiMaps>& source)
{
    const std::int32_t nbMaps = source.getNbObjects();
    for (std::int32_t i = 0; i < nbMaps; ++i) {
        IZelMultiMaps* copy = destination.newZelObject(-1);
        OvThrow::IfNULL(copy);
        // One of the few lines for standard output: a clone has no document to warn.
        if (!copyMaps(*copy, *source.getZelObject(i)))
            std::puts("CZelMultiMaps::CopyMultiMapsMgr - Warning: Sub part without url");
    }
}

} // namespace OvZel
