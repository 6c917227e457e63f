// Makes a document, saves it, opens the file and saves it again under another name.

#include <zel/IZelMgr.h>

#include <cstdio>
#include <fstream>
#include <string>

using namespace OvZel;

class CFile : public IZelReadStream, public IZelWriteStream {
public:
    CFile(const std::string& path, std::ios::openmode mode) : mFile(path, mode | std::ios::binary)
    {
    }

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        mFile.read(static_cast<char*>(buffer), size);
        mFile.clear(); // at its end a file would refuse to tell or change its position
        return static_cast<std::uint32_t>(mFile.gcount());
    }
    std::int64_t getPosition() override { return mFile.tellg(); }
    void setPosition(std::int64_t position) override { mFile.seekg(position); }

    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        mFile.write(static_cast<const char*>(buffer), size);
        return size; // nobody looks at it: ask close at the end
    }
    bool close()
    {
        mFile.close();
        return mFile.good();
    }

private:
    std::fstream mFile;
};

class CConsole : public IZelFeedback {
public:
    void message(IZelMgr*, const char* text) override { std::fprintf(stderr, "%s\n", text); }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { return true; }
};

static bool save(IZelMgr& document, const std::string& path)
{
    CFile file(path, std::ios::out | std::ios::trunc);
    const bool isWritten = document.write(&file, nullptr);
    return file.close() && isWritten;
}

static bool open(IZelMgr& document, const std::string& path)
{
    CFile file(path, std::ios::in);
    return document.read(&file, nullptr);
}

int main(int argc, char** argv)
{
    const std::string folder = argc > 1 ? argv[1] : ".";
    CConsole console; // outlives both documents
    IZelMgr* made = nullptr;
    IZelMgr* opened = nullptr;
    IZelMgr::newZelMgr(&made, eVersionZel, &console);
    IZelMgr::newZelMgr(&opened, eVersionZel, &console);
    if (!made || !opened)
        return 1;

    made->setApplication("Guide", "1.0");
    const bool isGood = save(*made, folder + "/first.zel") &&
                        open(*opened, folder + "/first.zel") &&
                        save(*opened, folder + "/second.zel");
    std::printf("written by %s %s\n", opened->getApplicationName(),
                opened->getApplicationVersion());
    opened->Release();
    made->Release();
    return isGood ? 0 : 1;
}
