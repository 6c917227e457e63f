#pragma once

#include "xml/trn_timage.h"

namespace OvZel {

/// A bitmap of four bytes a pixel.
class trn_image_RGBAn8 : public trn_timage<trn_generic_RGBA<unsigned char>> {
public:
    using CPixel = trn_generic_RGBA<unsigned char>;
    using trn_timage::trn_timage;

    void convert_from(const trn_RGBAn8& from, CPixel& to) const override;
    void convert_from(const CPixel& from, trn_RGBAn8& to) const override;
    /// Weights are whole numbers, and not all 0.
    CPixel average(const CPixel& a, trn_float wa, const CPixel& b, trn_float wb, const CPixel& c,
                   trn_float wc, const CPixel& d, trn_float wd) const override;
};

static_assert(sizeof(trn_image_RGBAn8::CPixel) == 4, "pixels cross the boundary as four bytes");

} // namespace OvZel
