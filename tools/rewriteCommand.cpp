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

static void refuseUnlessForced(const CRewrite& request, const std::string& why)
{
    if (!request.force)
        throw CToolError(eNotReadable,
                         request.in + ": " + why + ", so a save may lose data (--force saves)");
    complain(request.in + ": " + why + "; saved all the same");
}

static void checkVersion(CFileReadStream& stream, const CRewrite& request)
{
    OvZel::IZelMgr::eReadability readability = OvZel::IZelMgr::eUnknown;
    OvZel::IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0);
    stream.check();
    if (readability >= OvZel::IZelMgr::eNewer && readability <= OvZel::IZelMgr::eTooNew)
        refuseUnlessForced(request, "written by a newer library");
}

static void checkBlocks(CToolDocument& document, const CRewrite& request)
{
    const std::uint64_t nbLost = document.feedback().getNbLostBlocks();
    if (nbLost > 0)
        refuseUnlessForced(request, "sections that can't be read: " + std::to_string(nbLost));
}

static void saveAs(CToolDocument& document, const CRewrite& request)
{
    document.save(request.out, nullptr, request.minVersion ? &*request.minVersion : nullptr);
}

static void rewriteBare(CFileReadStream& stream, const CRewrite& request)
{
    CToolDocument document;
    document.read(stream, request.in);
    saveAs(document, request);
}

void rewriteCommand(const CRewrite& request)
{
    CFileReadStream stream(request.in);
    if (request.bare)
        return rewriteBare(stream, request);
    checkVersion(stream, request);
    THeld<OvZel::IZelImage> preview;
    OvZel::IZelMgr::readPreviewImage(preview.out(), &stream);
    stream.setPosition(0);

    CToolDocument document;
    document.read(stream, request.in);
    checkBlocks(document, request);
    reportDroppedSections(*document, request.in);
    if (preview)
        keepPreview(document, *preview);
    saveAs(document, request);
}

} // namespace tool
