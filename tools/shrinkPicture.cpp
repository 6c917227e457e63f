#include "tools/shrinkPicture.h"

#include <algorithm>
#include <array>

namespace tool {

namespace {

// One axis of both pictures, measured so that an old pixel is as long as there are new ones and a
// new pixel as long as there are old ones. So shares of pixels are whole numbers.
struct CAxis {
    std::uint64_t nbOld;
    std::uint64_t nbNew;

    std::uint64_t first(std::uint64_t index) const { return index * nbOld / nbNew; }
    std::uint64_t end(std::uint64_t index) const { return ((index + 1) * nbOld - 1) / nbNew + 1; }
    // How much of an old pixel a new one covers.
    std::uint64_t share(std::uint64_t oldIndex, std::uint64_t newIndex) const
    {
        return std::min((oldIndex + 1) * nbNew, (newIndex + 1) * nbOld) -
               std::max(oldIndex * nbNew, newIndex * nbOld);
    }
};

} // namespace

// A picture has at most 2^28 pixels, so the sums, of shares, colour and alpha, stay below 2^44.
static std::array<std::uint8_t, 4> meanOf(const CPicture& picture, const CAxis& across,
                                          const CAxis& down, std::uint64_t x, std::uint64_t y)
{
    std::array<std::uint64_t, 3> colours = {};
    std::uint64_t alpha = 0;
    for (std::uint64_t row = down.first(y); row < down.end(y); ++row)
        for (std::uint64_t column = across.first(x); column < across.end(x); ++column) {
            const std::uint8_t* pixel = &picture.pixels[4 * (row * picture.width + column)];
            const std::uint64_t weight = across.share(column, x) * down.share(row, y) * pixel[3];
            for (std::size_t i = 0; i < colours.size(); ++i)
                colours[i] += weight * pixel[i];
            alpha += weight;
        }
    std::array<std::uint8_t, 4> mean = {};
    const std::uint64_t area = across.nbOld * down.nbOld;
    mean[3] = static_cast<std::uint8_t>((alpha + area / 2) / area);
    for (std::size_t i = 0; alpha > 0 && i < colours.size(); ++i)
        mean[i] = static_cast<std::uint8_t>((colours[i] + alpha / 2) / alpha);
    return mean;
}

CPicture shrinkPicture(CPicture picture, std::uint32_t side)
{
    const std::uint64_t longest = std::max(picture.width, picture.height);
    if (longest <= side)
        return picture;
    const auto shrunk = [&](std::uint64_t length) {
        return std::max<std::uint64_t>(1, (length * side + longest / 2) / longest);
    };
    const CAxis across{picture.width, shrunk(picture.width)};
    const CAxis down{picture.height, shrunk(picture.height)};
    CPicture small{
        static_cast<std::uint32_t>(across.nbNew), static_cast<std::uint32_t>(down.nbNew), {}};
    small.pixels.reserve(4 * across.nbNew * down.nbNew);
    for (std::uint64_t y = 0; y < down.nbNew; ++y)
        for (std::uint64_t x = 0; x < across.nbNew; ++x) {
            const auto mean = meanOf(picture, across, down, x, y);
            small.pixels.insert(small.pixels.end(), mean.begin(), mean.end());
        }
    return small;
}

} // namespace tool
