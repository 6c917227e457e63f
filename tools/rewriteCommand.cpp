#include "tools/commands.h"

#include "tools/CToolDocument.h"
#include "tools/droppedSections.h"

namespace tool {

// A load leaves the preview of most files aside, so that a save would lose it.
static void keepPreview(CToolDocument& document, OvZel::IZelImage& preview)
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t* pixels = nullptr;
    document->getPreviewImage()->getImage(&width, &height, &pixels);
    if (pixels)
        return;
    preview.getImage(&width, &height, &pixels);
    document->getPreviewImage()->setImage(width, height, pixels);
}

void rewriteCommand(const std::string& in, const std::string& out, bool bare)
{
    CFileReadStream stream(in);
    THeld<OvZel::IZelImage> preview;
    if (!bare) {
        OvZel::IZelMgr::readPreviewImage(preview.out(), &stream);
        stream.setPosition(0);
    }
    CToolDocument document;
    document.read(stream, in);
    if (!bare) {
        reportDroppedSections(*document, in);
        if (preview)
            keepPreview(document, *preview);
    }
    document.save(out);
}

} // namespace tool
