// Questions about a file that isn't loaded.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/streams.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

using OvZel::IZelMgr;

namespace ZelBench {

namespace {

using CTexts = std::vector<std::string>;

CTexts documents()
{
    CTexts texts{elementsFile()};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZEL_BENCH_DATA)) {
        std::ifstream in(entry.path(), std::ios::binary);
        if (entry.path().extension() == ".zel")
            texts.emplace_back(std::istreambuf_iterator<char>(in),
                               std::istreambuf_iterator<char>());
    }
    return texts;
}

/// A megabyte, so that a search for the head that goes on too long shows.
const std::string kFiller(1'000'000, ' ');
const std::string kHead = "<?xml version=\"1.0\"?>";

CTexts otherFiles()
{
    return {kHead + "<Zel.File>" + kFiller + "</Zel.File>",
            kHead + "<Zel.File a=\"" + kFiller + "\"/>", kFiller, std::string(kFiller.size(), '\0'),
            std::string(kFiller.size(), 'a')};
}

/// The instruction that tells the format may stand behind these.
CTexts longHeads()
{
    return {kHead + "<!--" + kFiller + "--><Zel.File/>",
            kHead + "<?Other " + kFiller + "?><Zel.File/>",
            kHead + "<!DOCTYPE a [" + kFiller + "]><Zel.File/>"};
}

/// The most bytes that a check of one of the texts asks for.
SPair checkPair(CTexts texts)
{
    return {[] { return 0.0; },
            [texts = std::move(texts)] {
                std::uint64_t most = 0;
                for (const std::string& text : texts) {
                    CTextSource source(text);
                    IZelMgr::checkFormat2(&source, nullptr, nullptr, nullptr, 0);
                    most = std::max(most, source.nbBytes);
                }
                return static_cast<double>(most);
            }};
}

const CRow kCheckDocuments("check_format", [] { return checkPair(documents()); });
const CRow kCheckOthers("check_format_other", [] { return checkPair(otherFiles()); });
const CRow kCheckLongHeads("check_format_long_head", [] { return checkPair(longHeads()); });

/// Behind the preview stands the answer, and behind that a mesh.
std::string fileWithPreview()
{
    const std::string digits = "000000010000000100000001"
                               "00000001FF000000" +
                               std::string(400'000, '0');
    return zelFile("\t<Preview.Image><![CDATA[" + digits +
                   "]]></Preview.Image>\n\t<File.Info UUID=\"16375F971412CD13DBA7201877541092\">"
                   "<Origin X=\"1.5\" Y=\"-2.25\" Z=\"3.0\"/></File.Info>\n" +
                   pointsSection(terrain()));
}

const CRow kFileInfo("file_info", [] {
    const auto file = std::make_shared<std::string>(fileWithPreview());
    const auto answer = static_cast<double>(file->find("</File.Info>"));
    return SPair{[answer] { return 2.0 * (answer + 64 * 1024); },
                 [file] {
                     CTextSource source(*file);
                     OvZel::IZelFileInfo* info = nullptr;
                     IZelMgr::readFileInfo(&info, &source);
                     if (info == nullptr || info->getOrigin()[0] != 1.5)
                         throw std::runtime_error("The origin wasn't found");
                     info->Release();
                     return static_cast<double>(source.nbBytes);
                 }};
});

std::string hugeFile()
{
    const std::uint64_t size = isSmall() ? 64'000'000 : 1'000'000'000;
    std::string block;
    while (block.size() < 1'000'000)
        block += "\n1234.567891 -234.567891 34.567891 ";
    const std::string whole = zelFile("\t<Points><![CDATA[]]></Points>\n\t<Object.Definition>"
                                      "<Name en=\"House\"/></Object.Definition>\n");
    const std::size_t middle = whole.find("]]>");
    const std::string path = workPath("huge.zel");
    CFileTarget out(path);
    out.write(whole.data(), static_cast<std::uint32_t>(middle));
    for (std::uint64_t i = 0; i < size / block.size(); ++i)
        out.write(block.data(), static_cast<std::uint32_t>(block.size()));
    out.write(whole.data() + middle, static_cast<std::uint32_t>(whole.size() - middle));
    return path;
}

/// Every byte read and looked at once.
std::size_t countBrackets(const std::string& path)
{
    CFileSource source(path);
    std::vector<char> buffer(64 * 1024);
    std::size_t count = 0;
    while (const std::uint32_t size = source.read(buffer.data(), 64 * 1024)) {
        const char* const end = buffer.data() + size;
        for (const char* in = buffer.data(); in != end; ++in, ++count) {
            in = static_cast<const char*>(std::memchr(in, ']', static_cast<std::size_t>(end - in)));
            if (in == nullptr)
                break;
        }
    }
    return count;
}

CDocument mediaInfo(const std::string& path)
{
    CDocument document;
    CFileSource source(path);
    document->readMediaInfo(&source);
    const OvZel::IZelString* const name = document->getObjectDefinition()->getName();
    if (std::strcmp(name->getText('e' * 256 + 'n'), "House") != 0)
        throw std::runtime_error("The name wasn't found");
    return document;
}

const CRow kMediaInfo("media_info", [] {
    const std::string path = hugeFile();
    return SPair{[path] { return secondsOf([&] { return countBrackets(path); }); },
                 [path] { return secondsOf([&] { return mediaInfo(path); }); }};
});

} // namespace

} // namespace ZelBench
