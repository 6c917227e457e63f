#include "tools/commands.h"

#include "tools/CFileReadStream.h"
#include "tools/THeld.h"
#include "tools/pngFile.h"
#include "tools/shrinkPicture.h"

#include <zel/IZelMgr.h>

#include <utility>

namespace tool {

void previewCommand(const std::string& file, const std::string& png, std::uint32_t side)
{
    CFileReadStream stream(file);
    THeld<OvZel::IZelImage> image;
    OvZel::IZelMgr::readPreviewImage(image.out(), &stream);
    stream.check();

    CPicture picture;
    std::uint8_t* pixels = nullptr;
    if (image)
        image->getImage(&picture.width, &picture.height, &pixels);
    if (!pixels)
        throw CToolError(eNotReadable, file + ": no preview picture");
    picture.pixels.assign(pixels, pixels + std::size_t{4} * picture.width * picture.height);
    writePng(side > 0 ? shrinkPicture(std::move(picture), side) : picture, png);
}

} // namespace tool
