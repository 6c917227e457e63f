#include "tests/conformance/events.h"
#include "tests/support/xmlTree.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

// The files of the W3C conformance suite through the XML layer, beside libxml2. Where the two
// differ is listed in expectedDifferences.txt with a reason; a difference that isn't listed fails,
// and so does one that is listed and isn't there.

namespace fs = std::filesystem;
using namespace ZelTest;

namespace {

std::string contents(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> suiteFiles()
{
    std::vector<fs::path> files;
    if (fs::is_directory(ZEL_XML_SUITE))
        for (const fs::directory_entry& each : fs::recursive_directory_iterator(ZEL_XML_SUITE))
            if (each.path().extension() == ".xml")
                files.push_back(each.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// In one line, with what does not print as numbers.
std::string shown(const std::string& text)
{
    constexpr std::size_t kMost = 60;
    constexpr const char* kDigits = "0123456789ABCDEF";
    std::string made;
    for (const char c : text.substr(0, kMost)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > ' ' && byte < 0x7F && c != '\\')
            made += c;
        else
            made += byte == ' ' ? std::string(" ")
                                : std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15];
    }
    return made;
}

/// The kind of an event and its text around the first byte that the other one does not have.
std::string shown(const std::string& event, const std::string& other)
{
    constexpr std::size_t kFew = 20;
    const auto place = static_cast<std::size_t>(
        std::mismatch(event.begin(), event.end(), other.begin(), other.end()).first -
        event.begin());
    if (place < 2 * kFew)
        return shown(event);
    return event.substr(0, event.find(' ')) + " ... " + shown(event.substr(place - kFew));
}

/// In a few words, empty for none.
std::string difference(const std::string& text)
{
    const CParsed ours = parseWithTree(text, CXMLTextSource::kWhole);
    const CParsed theirs = parseWithLibxml(text);
    if (theirs.isGood && theirs.hasEntities) // of a declaration that we do not read
        return "";
    if (ours.isGood != theirs.isGood)
        return ours.isGood ? "read, though it is not well-formed" : "refused: " + ours.message;
    if (!ours.isGood || ours.events == theirs.events)
        return "";
    const auto [mine, other] = std::mismatch(ours.events.begin(), ours.events.end(),
                                             theirs.events.begin(), theirs.events.end());
    const std::string a = mine == ours.events.end() ? "" : *mine;
    const std::string b = other == theirs.events.end() ? "" : *other;
    return "[" + shown(a, b) + "] for [" + shown(b, a) + "]";
}

/// By file: the difference and its reason.
std::map<std::string, std::pair<std::string, std::string>> expectedDifferences()
{
    std::map<std::string, std::pair<std::string, std::string>> expected;
    std::ifstream file(ZEL_EXPECTED_DIFFERENCES);
    for (std::string line; std::getline(file, line);) {
        const std::size_t first = line.find('\t');
        const std::size_t second = line.find('\t', first + 1);
        if (line[0] != '#')
            expected[line.substr(0, first)] = {line.substr(first + 1, second - first - 1),
                                               line.substr(second + 1)};
    }
    return expected;
}

} // namespace

TEST(XmlConformance, DiffersFromLibxmlOnlyWhereItIsListed)
{
    const std::vector<fs::path> files = suiteFiles();
    if (files.empty())
        GTEST_SKIP() << "no conformance suite; scripts/install-xml-conformance fetches it";
    auto expected = expectedDifferences();
    for (const fs::path& path : files) {
        const std::string name = fs::relative(path, ZEL_XML_SUITE).generic_string();
        const std::string found = difference(contents(path));
        EXPECT_EQ(found, expected[name].first) << name;
        EXPECT_EQ(found.empty(), expected[name].second.empty()) << name << " needs a reason";
        expected.erase(name);
    }
    for (const auto& [name, entry] : expected)
        ADD_FAILURE() << name << " is listed, but not in the suite";
}

TEST(XmlConformance, PiecesAndASecondReadMakeNoDifference)
{
    const std::vector<fs::path> files = suiteFiles();
    if (files.empty())
        GTEST_SKIP() << "no conformance suite; scripts/install-xml-conformance fetches it";
    for (const fs::path& path : files) {
        SCOPED_TRACE(path);
        const std::string text = contents(path);
        const CParsed whole = parseWithTree(text, CXMLTextSource::kWhole);
        const CParsed pieces = parseWithTree(text, 7);
        EXPECT_EQ(pieces.message, whole.message);
        EXPECT_EQ(pieces.events, whole.events);
        if (!whole.isGood || !parseWithLibxml(text).isGood)
            continue;
        const std::string once = written(*readTree(text));
        EXPECT_EQ(parseWithTree(once, CXMLTextSource::kWhole).events, whole.events);
    }
}
