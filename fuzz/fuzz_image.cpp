#include "fuzz/hasLargePicture.h"
#include "tests/support/CStepReadStream.h"
#include "tests/support/CTextWriteStream.h"
#include "xml/XCXMLImage.h"

#include <cstdlib>
#include <cstring>
#include <exception>

using OvZel::XCXMLImage;

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

void readAgain(const XCXMLImage& image)
{
    CTextWriteStream written;
    image.WriteImage(written);
    CStepReadStream stream(written.text);
    XCXMLImage again;
    again.ReadImage(stream);
    check(again.width() == image.width() && again.height() == image.height());
    check(std::memcmp(again.pixels(), image.pixels(), image.nbPixels() * 4) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (hasLargePicture(text, ""))
        return 0;
    CStepReadStream stream(text);
    XCXMLImage image;
    try {
        image.ReadImage(stream);
    } catch (const std::exception&) {
        return 0;
    }
    if (image.nbPixels() > 0)
        readAgain(image);
    return 0;
}
