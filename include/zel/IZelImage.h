#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// A bitmap of a document: rows from the top, four bytes a pixel, red, green, blue, alpha.
class IZelImage : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"8697F44E6B7A4284970D3FB3C7447206"};

    /// Any of the three may be null. Without a bitmap 0, 0 and null. The pixels belong to the
    /// image and are good until its bitmap changes.
    virtual void getImage(std::uint32_t* width, std::uint32_t* height, std::uint8_t** pixels) = 0;
    /// Copies width x height x 4 bytes; with any argument zero or null the bitmap is dropped. A
    /// bitmap too large for the memory or the file warns and leaves the old one.
    virtual void setImage(std::uint32_t width, std::uint32_t height,
                          const std::uint8_t* pixels) = 0;
    /// The same identifier as that of the basic data, and the one in the file.
    virtual const CZelUUID* getId() const = 0;
    /// Null stores the null identifier.
    virtual void setId(const CZelUUID* id) = 0;

protected:
    ~IZelImage() override = default;
};

} // namespace OvZel
