// Makes a document with one square, saves it, asks the file what it is, and loads it again.

#include "examples/shared/CConsole.h"
#include "examples/shared/CFileReader.h"
#include "examples/shared/CFileWriter.h"

#include <zel/IZelMgr.h>

#include <cstdio>

using namespace OvZel;
using namespace example;

namespace {

void addSquare(IZelMgr* document)
{
    const CZelPoint corners[] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    IZelPolygon* polygon = document->getPolygons()->newZelObject(-1);
    for (const CZelPoint& corner : corners) {
        CZelVertex* vertex = polygon->getVertices()->newZelObject(-1);
        vertex->pointIndex = document->getPoints()->getNbObjects();
        *document->getPoints()->newZelObject(-1) = corner;
    }
}

bool save(const char* path, IZelFeedback* feedback)
{
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, IZelMgr::getZELVersion(), feedback);
    if (!document)
        return false;
    document->setURL(path);
    addSquare(document);

    CFileWriter file(path);
    const bool written = document->write(&file, nullptr);
    document->Release();
    return file.close() && written;
}

bool probe(const char* path)
{
    CFileReader file(path);
    IZelMgr::eReadability readability = IZelMgr::eUnknown;
    CZelVersion version;
    if (!IZelMgr::checkFormat2(&file, &readability, &version, nullptr, 0))
        return false;
    std::printf("readability %d, version %d.%d.%d\n", readability, version.major, version.minor,
                version.patch);
    return readability == IZelMgr::eSame;
}

bool load(const char* path, IZelFeedback* feedback)
{
    CFileReader file(path);
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, IZelMgr::getZELVersion(), feedback);
    if (!document)
        return false;
    const bool isRead = document->read(&file, nullptr);
    const int nbPoints = document->getPoints()->getNbObjects();
    const int nbPolygons = document->getPolygons()->getNbObjects();
    document->Release();
    std::printf("%d points, %d polygons\n", nbPoints, nbPolygons);
    return isRead && nbPoints == 4 && nbPolygons == 1;
}

} // namespace

int main(int argc, char** argv)
{
    const char* path = argc > 1 ? argv[1] : "first_steps.zel";
    CConsole console;
    if (save(path, &console) && probe(path) && load(path, &console))
        return 0;
    std::fprintf(stderr, "%s: failed\n", path);
    return 1;
}
