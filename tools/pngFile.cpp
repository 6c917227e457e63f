#include "tools/pngFile.h"

#include "tools/CAtomicFile.h"
#include "tools/CFileReadStream.h"
#include "tools/CToolError.h"

#include <png.h>

namespace tool {

// Sizes of pictures are 32-bit numbers in the PNG library.
static constexpr std::uint64_t kMaxPixels = 1U << 28;

namespace {

// The PNG library's record of one picture, freed on every way out.
class CPngImage {
public:
    CPngImage() { mImage.version = PNG_IMAGE_VERSION; }
    ~CPngImage() { png_image_free(&mImage); }
    CPngImage(const CPngImage&) = delete;
    CPngImage& operator=(const CPngImage&) = delete;

    png_image* get() { return &mImage; }
    png_image* operator->() { return &mImage; }

private:
    png_image mImage = {};
};

} // namespace

static void checkSize(std::uint32_t width, std::uint32_t height, const std::string& path)
{
    if (std::uint64_t{width} * height > kMaxPixels)
        throw CToolError(eNotReadable, path + ": the picture is too large");
}

CPicture readPng(const std::string& path)
{
    char firstByte = 0;
    CFileReadStream stream(path); // tells a file that cannot be read from one that is no picture
    stream.read(&firstByte, 1);
    stream.check();

    CPngImage image;
    if (!png_image_begin_read_from_file(image.get(), path.c_str()))
        throw CToolError(eNotReadable, path + ": " + image->message);
    checkSize(image->width, image->height, path);
    image->format = PNG_FORMAT_RGBA;
    CPicture picture{image->width, image->height, {}};
    picture.pixels.resize(std::size_t{4} * picture.width * picture.height);
    if (!png_image_finish_read(image.get(), nullptr, picture.pixels.data(), 0, nullptr))
        throw CToolError(eNotReadable, path + ": " + image->message);
    return picture;
}

static std::vector<std::uint8_t> encode(const CPicture& picture, const std::string& path)
{
    CPngImage image;
    image->width = picture.width;
    image->height = picture.height;
    image->format = PNG_FORMAT_RGBA;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(*image.get());
    std::vector<std::uint8_t> bytes(size);
    if (!png_image_write_to_memory(image.get(), bytes.data(), &size, 0, picture.pixels.data(), 0,
                                   nullptr))
        throw CToolError(eNotReadable, path + ": " + image->message);
    bytes.resize(size);
    return bytes;
}

void writePng(const CPicture& picture, const std::string& path)
{
    checkSize(picture.width, picture.height, path);
    const std::vector<std::uint8_t> bytes = encode(picture, path);
    CAtomicFile file(path);
    file.stream().write(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    file.commit();
}

} // namespace tool
