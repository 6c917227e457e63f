// A picture like a photo, in which no two neighbours are equal, against Python's binascii.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/streams.h"

#include <cstdio>
#include <memory>
#include <random>
#include <vector>

namespace ZelBench {

namespace {

CDocument withPhoto()
{
    const std::uint32_t width = isSmall() ? 512 : 4096, height = width / 2;
    std::vector<std::uint8_t> pixels;
    std::mt19937 random(1);
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) {
            const auto noise = static_cast<std::uint32_t>(random());
            pixels.push_back(static_cast<std::uint8_t>(255 * x / width));
            pixels.push_back(static_cast<std::uint8_t>(255 * y / height + noise % 4));
            pixels.push_back(static_cast<std::uint8_t>(2 * noise + x % 2));
            pixels.push_back(255);
        }
    CDocument document;
    document->getImages()->newZelObject(-1)->setImage(width, height, pixels.data());
    return document;
}

std::string saved(const CDocument& document)
{
    CTextTarget target;
    document.write(std::move(target));
    return target.text;
}

/// The time that Python tells for the digits in the file.
double secondsOfPython(const std::string& path, const char* direction)
{
    const std::string command =
        std::string("python3 '" ZEL_BENCH_SOURCE "/hex_anchor.py' '") + path + "' " + direction;
    warmMemory();
    FILE* const answer = popen(command.c_str(), "r");
    double seconds = 0.0;
    const bool isRead = answer != nullptr && std::fscanf(answer, "%lf", &seconds) == 1;
    if (answer == nullptr || pclose(answer) != 0 || !isRead)
        throw std::runtime_error("hex_anchor.py failed");
    return seconds;
}

const CRow kDecode("image_decode", [] {
    const auto file = std::make_shared<std::string>(saved(withPhoto()));
    const std::string digits = fileWith("photo.hex", sectionText(*file, "Image UUID"));
    return SPair{[digits] { return secondsOfPython(digits, "decode"); },
                 [file] { return secondsOf([&] { return CDocument::from(CTextSource(*file)); }); }};
});

const CRow kEncode("image_encode", [] {
    const auto document = std::make_shared<CDocument>(withPhoto());
    const std::string file = saved(*document);
    const std::string digits = fileWith("photo.hex", sectionText(file, "Image UUID"));
    return SPair{[digits] { return secondsOfPython(digits, "encode"); },
                 [document] {
                     return secondsOf([&] {
                         document->write(CNullTarget());
                         return 0;
                     });
                 }};
});

} // namespace

} // namespace ZelBench
