#include "tools/loadForSave.h"

#include "tools/CToolDocument.h"
#include "tools/CToolError.h"
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

namespace {

struct CRequest {
    const std::string& file;
    const std::string& remedy;
    bool force;
};

} // namespace

static void refuseUnlessForced(const CRequest& request, const std::string& why)
{
    if (!request.force)
        throw CToolError(eNotReadable, request.file + ": " + why + ", so a save may lose data (" +
                                           request.remedy + ")");
    complain(request.file + ": " + why + "; saved all the same");
}

static void checkVersion(CFileReadStream& stream, const CRequest& request)
{
    OvZel::IZelMgr::eReadability readability = OvZel::IZelMgr::eUnknown;
    OvZel::IZelMgr::checkFormat2(&stream, &readability, nullptr, nullptr, 0);
    stream.check();
    if (readability >= OvZel::IZelMgr::eNewer && readability <= OvZel::IZelMgr::eTooNew)
        refuseUnlessForced(request, "written by a newer library");
}

static void checkBlocks(CToolDocument& document, const CRequest& request)
{
    const std::uint64_t nbLost = document.feedback().getNbLostBlocks();
    if (nbLost > 0)
        refuseUnlessForced(request, "sections that can't be read: " + std::to_string(nbLost));
}

void loadForSave(CToolDocument& document, const std::string& file, const std::string& remedy,
                 bool force)
{
    const CRequest request{file, remedy, force};
    CFileReadStream stream(file);
    checkVersion(stream, request);
    THeld<OvZel::IZelImage> preview;
    OvZel::IZelMgr::readPreviewImage(preview.out(), &stream);
    stream.setPosition(0);

    document.read(stream, file);
    checkBlocks(document, request);
    reportDroppedSections(*document, file);
    if (preview)
        keepPreview(document, *preview);
}

} // namespace tool
