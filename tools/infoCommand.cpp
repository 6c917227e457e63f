#include "tools/commands.h"

#include "tools/CFileReadStream.h"
#include "tools/CFileRun.h"
#include "tools/CToolOutput.h"
#include "tools/THeld.h"
#include "tools/eachFile.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

#include <algorithm>

namespace tool {

using nlohmann::ordered_json;

// What the probes tell about one file.
struct CInfo {
    std::string file;
    bool accepted = false;
    OvZel::IZelMgr::eReadability readability = OvZel::IZelMgr::eUnknown;
    OvZel::CZelVersion version;
    std::string label;
    double origin[3] = {};
    char uuid[33] = "00000000000000000000000000000000";
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

static constexpr const char* kReadabilityWords[] = {
    "no-document", "older",           "recent",  "same",
    "newer",       "newer-with-loss", "too-new", "other-application"};

static void probeFormat(CFileReadStream& stream, CInfo& info)
{
    char label[64] = "";
    info.accepted = OvZel::IZelMgr::checkFormat2(&stream, &info.readability, &info.version, label,
                                                 sizeof label);
    if (info.accepted)
        info.label = label;
}

static void probeFileInfo(CFileReadStream& stream, CInfo& info)
{
    THeld<OvZel::IZelFileInfo> fileInfo;
    OvZel::IZelMgr::readFileInfo(fileInfo.out(), &stream);
    if (!fileInfo)
        return;
    std::copy_n(fileInfo->getOrigin(), 3, info.origin);
    fileInfo->getBasicData()->getId()->toText(info.uuid);
}

static void probePreview(CFileReadStream& stream, CInfo& info)
{
    THeld<OvZel::IZelImage> image;
    OvZel::IZelMgr::readPreviewImage(image.out(), &stream);
    if (image)
        image->getImage(&info.width, &info.height, nullptr);
}

static CInfo probe(const std::string& file)
{
    CFileReadStream stream(file);
    CInfo info;
    info.file = file;
    probeFormat(stream, info);
    if (info.readability != OvZel::IZelMgr::eUnknown) {
        probeFileInfo(stream, info);
        probePreview(stream, info); // last, since it leaves the stream where it stopped
    }
    stream.check();
    return info;
}

static ordered_json objectOf(const CInfo& info)
{
    ordered_json preview;
    if (info.width > 0 && info.height > 0)
        preview = {{"width", info.width}, {"height", info.height}};
    return {
        {"file", info.file},         {"readability", static_cast<int>(info.readability)},
        {"accepted", info.accepted}, {"version", versionText(info.version)},
        {"label", info.label},       {"origin", {info.origin[0], info.origin[1], info.origin[2]}},
        {"uuid", info.uuid},         {"preview", preview},
    };
}

static std::string textLine(const CInfo& info)
{
    return oneLine(info.file) + "\t" + versionText(info.version) + "\t" +
           (info.label.empty() ? "-" : info.label) + "\t" + kReadabilityWords[info.readability] +
           "\n";
}

static EExit infoOfFile(const CFileTask& task, bool asJson, CToolOutput& output)
{
    const CInfo info = probe(task.file);
    if (task.object)
        *task.object = objectOf(info);
    else
        output.write(asJson ? jsonLine(objectOf(info)) : textLine(info));
    if (info.accepted)
        return eDone;
    throw CToolError(eNotReadable, task.file + ": not readable");
}

EExit infoCommand(const CFileRun& run, CToolOutput& output)
{
    return eachFile(
        run, [&](const CFileTask& task) { return infoOfFile(task, run.asJson, output); }, output);
}

} // namespace tool
