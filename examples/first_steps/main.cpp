// Makes a document with one square, saves it, asks the file what it is, and loads it again.

#include <zel/IZelMgr.h>

#include <cstdio>
#include <fstream>

using namespace OvZel;

namespace {

class CFileReader : public IZelReadStream {
public:
    explicit CFileReader(const char* path) : mFile(path, std::ios::binary) {}

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        mFile.read(static_cast<char*>(buffer), size);
        mFile.clear(); // at its end a file would refuse to tell or change its position
        return static_cast<std::uint32_t>(mFile.gcount());
    }
    std::int64_t getPosition() override { return mFile.tellg(); }
    void setPosition(std::int64_t position) override { mFile.seekg(position); }

private:
    std::ifstream mFile;
};

class CFileWriter : public IZelWriteStream {
public:
    explicit CFileWriter(const char* path) : mFile(path, std::ios::binary) {}

    // The library ignores the result of write, so the file is asked at the end.
    bool close()
    {
        mFile.close();
        return mFile.good();
    }

    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        mFile.write(static_cast<const char*>(buffer), size);
        return size;
    }

private:
    std::ofstream mFile;
};

class CConsole : public IZelFeedback {
public:
    void message(IZelMgr*, const char* text) override { std::fprintf(stderr, "%s\n", text); }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { return true; }
};

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
