#pragma once

#include "materials/CMapUrls.h"

#include <zel/IZelMultiMaps.h>

namespace OvZel {

/// Copies the addresses of all kinds that are saved; says whether there was one.
inline bool copyMaps(IZelMultiMaps& destination, const IZelMultiMaps& source)
{
    bool any = false;
    for (std::int32_t kind = CMapUrls::kFirstKind; kind <= CMapUrls::kLastKind; ++kind) {
        const char* url = source.getURL(kind);
        if (url == nullptr || *url == '\0')
            continue;
        destination.setURL(kind, url);
        any = true;
    }
    return any;
}

} // namespace OvZel
