#include "fuzz/check.h"
#include "fuzz/hasLargePicture.h"
#include "tests/support/CXMLTextSource.h"
#include "tests/support/CXMLTextTarget.h"
#include "xml/XCXMLImage.h"

#include <cstring>
#include <exception>

using OvZel::XCXMLImage;
using ZelTest::CXMLTextSource;
using ZelTest::CXMLTextTarget;

namespace {

void readAgain(const XCXMLImage& image)
{
    CXMLTextTarget written;
    image.WriteImage(written);
    CXMLTextSource stream(written.text);
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
    CXMLTextSource stream(text);
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
