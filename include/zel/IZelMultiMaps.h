#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// The images of one layer, an address for each kind: 1 diffuse, 2 specular, 3 glossy,
/// 4 reflection, 5 environment, 6 alpha, 7 bump, 8 normal map, 9 neon, 10 relief, 11 movie.
class IZelMultiMaps {
public:
    static constexpr CZelUUID sIID{"57420C346A954C989B036A92F67F073E"};

    /// The empty text for a kind without an address; good until the next change of it. Another kind
    /// gives null with the warning "CZelMultiMaps::getURL - Invalid map type". A warning throws the
    /// null-pointer failure when the owner belongs to no document. Sub-parts differ, see there.
    virtual const char* getURL(std::int32_t kind) const = 0;
    /// Another kind warns "CZelMultiMaps::setURL - Invalid map type" and changes nothing. A null
    /// text is the empty one.
    virtual void setURL(std::int32_t kind, const char* url) = 0;

protected:
    ~IZelMultiMaps() = default;
};

} // namespace OvZel
