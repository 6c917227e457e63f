#include "xml/trn_image_RGBAn8.h"

namespace OvZel {

void trn_image_RGBAn8::convert_from(const trn_RGBAn8& from, CPixel& to) const
{
    to = {from.red, from.green, from.blue, from.alpha};
}

void trn_image_RGBAn8::convert_from(const CPixel& from, trn_RGBAn8& to) const
{
    to = {from.red, from.green, from.blue, from.alpha};
}

trn_image_RGBAn8::CPixel trn_image_RGBAn8::average(const CPixel& a, trn_float wa, const CPixel& b,
                                                   trn_float wb, const CPixel& c, trn_float wc,
                                                   const CPixel& d, trn_float wd) const
{
    const auto ka = static_cast<std::uint32_t>(wa);
    const auto kb = static_cast<std::uint32_t>(wb);
    const auto kc = static_cast<std::uint32_t>(wc);
    const auto kd = static_cast<std::uint32_t>(wd);
    const std::uint32_t sum = ka + kb + kc + kd;
    OvThrow::IfFalse(sum != 0, "trn_image_RGBAn8::average");
    const auto mean = [&](unsigned char CPixel::*channel) {
        const std::uint32_t weighted =
            a.*channel * ka + b.*channel * kb + c.*channel * kc + d.*channel * kd;
        return static_cast<unsigned char>(weighted / sum);
    };
    return {mean(&CPixel::red), mean(&CPixel::green), mean(&CPixel::blue), mean(&CPixel::alpha)};
}

} // namespace OvZel
