// Asks a file what it is without loading it.

#include "examples/shared/CDocument.h"

#include <cstdio>

using namespace OvZel;
using namespace example;

static bool probe(const char* path)
{
    CFileReader file(path);
    IZelMgr::eReadability readability = IZelMgr::eUnknown;
    CZelVersion version;
    char label[64] = "";
    if (!IZelMgr::checkFormat2(&file, &readability, &version, label, sizeof label))
        return false; // no document
    std::printf("%s, library %d.%d.%d\n", label, version.major, version.minor, version.patch);

    IZelImage* preview = nullptr; // null, or what it holds would be lost
    IZelMgr::readPreviewImage(&preview, &file);
    if (preview) {
        std::uint32_t width = 0, height = 0;
        preview->getImage(&width, &height, nullptr);
        std::printf("preview %u x %u\n", width, height);
        preview->Release();
    }

    file.setPosition(0); // the search for the picture stopped somewhere
    IZelFileInfo* info = nullptr;
    IZelMgr::readFileInfo(&info, &file);
    if (info) {
        char id[33];
        info->getBasicData()->getId()->toText(id);
        std::printf("identifier %s, origin %g %g %g\n", id, info->getOrigin()[0],
                    info->getOrigin()[1], info->getOrigin()[2]);
        info->Release();
    }
    return preview && info && readability == IZelMgr::eSame;
}

int main(int argc, char** argv)
{
    const std::string path = std::string(argc > 1 ? argv[1] : ".") + "/probes.zel";
    CDocument document;
    document->setApplication("Vendralis", "6.0");
    const std::uint8_t pixels[2 * 4] = {255, 0, 0, 255, 0, 0, 255, 255};
    document->getPreviewImage()->setImage(2, 1, pixels);
    document.save(path);
    return probe(path.c_str()) ? 0 : 1;
}
