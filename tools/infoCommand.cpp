#include "tools/commands.h"

#include "tools/CFileReadStream.h"
#include "tools/CToolOutput.h"
#include "tools/THeld.h"

#include <zel/IZelMgr.h>

#include <algorithm>
#include <nlohmann/json.hpp>

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

static std::string versionText(const OvZel::CZelVersion& version)
{
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.patch);
}

static std::string jsonLine(const CInfo& info)
{
    ordered_json preview;
    if (info.width > 0 && info.height > 0)
        preview = {{"width", info.width}, {"height", info.height}};
    const ordered_json object = {
        {"file", info.file},         {"readability", static_cast<int>(info.readability)},
        {"accepted", info.accepted}, {"version", versionText(info.version)},
        {"label", info.label},       {"origin", {info.origin[0], info.origin[1], info.origin[2]}},
        {"uuid", info.uuid},         {"preview", preview},
    };
    // A file name need not be UTF-8.
    return object.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

static std::string textLine(const CInfo& info)
{
    std::string file = info.file;
    std::replace_if(
        file.begin(), file.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, '?');
    return file + "\t" + versionText(info.version) + "\t" +
           (info.label.empty() ? "-" : info.label) + "\t" + kReadabilityWords[info.readability] +
           "\n";
}

static EExit infoOfFile(const std::string& file, bool asJson, CToolOutput& output)
{
    CInfo info;
    try {
        info = probe(file);
    } catch (const CToolError& error) {
        complain(error.what());
        return error.code();
    }
    output.write(asJson ? jsonLine(info) : textLine(info));
    if (info.accepted)
        return eDone;
    complain(file + ": not readable");
    return eNotReadable;
}

EExit infoCommand(const std::vector<std::string>& files, bool asJson, CToolOutput& output)
{
    EExit worst = eDone;
    for (const std::string& file : files)
        worst = std::max(worst, infoOfFile(file, asJson, output));
    return worst;
}

} // namespace tool
