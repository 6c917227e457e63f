// What a client hears of: a warning, a file that is broken, a load that it cancels.

#include "examples/shared/CFileReader.h"
#include "examples/shared/CFileWriter.h"

#include <zel/IZelMgr.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

using namespace OvZel;
using namespace example;

class CListener : public IZelFeedback {
public:
    std::vector<std::string> messages;
    bool goesOn = true;

    void message(IZelMgr*, const char* text) override { messages.emplace_back(text); }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { return goesOn; }

    void print(const char* when)
    {
        for (const std::string& text : messages)
            std::printf("%s: %s\n", when, text.c_str());
        messages.clear();
    }
};

static bool load(IZelMgr& document, const std::string& path)
{
    CFileReader file(path.c_str());
    return file.isOpen() && document.read(&file, nullptr);
}

int main(int argc, char** argv)
{
    const std::string folder = argc > 1 ? argv[1] : ".";
    CListener listener;
    IZelMgr* document = nullptr;
    IZelMgr::newZelMgr(&document, eVersionZel, &listener);
    if (!document)
        return 1; // the listener knows why

    // A bad argument: a message and the failure value.
    const bool isRefused = document->getLights()->getZelObject(7) == nullptr;
    listener.print("bad index");

    // A broken file: false and a message. The document stays usable.
    std::ofstream(folder + "/broken.zel")
        << R"(<?Zel library="6.0.6" file="6.0" min_version="6.0.0" safe_version="6.0.4"?>)"
        << "<Zel.File><Lights>";
    const bool isBroken = !load(*document, folder + "/broken.zel");
    listener.print("broken file");

    // A cancel: the same, by the client's own wish.
    for (int i = 0; i < 20000; ++i)
        *document->getPoints()->newZelObject(-1) = {1.0 * i, 0.0, 0.0};
    CFileWriter file((folder + "/long.zel").c_str());
    const bool isSaved = document->write(&file, nullptr) && file.close();
    listener.goesOn = false;
    const bool isCancelled = !load(*document, folder + "/long.zel");
    listener.print("cancel");

    document->Release();
    return isRefused && isBroken && isSaved && isCancelled ? 0 : 1;
}
