// A tree without geometry, against another one in memory.

#include "bench/CDocument.h"
#include "bench/CRow.h"
#include "bench/inputs.h"
#include "bench/memoryOf.h"
#include "bench/streams.h"
#include "xml/tree/CXMLTreeReader.h"

#include <fstream>
#include <memory>
#include <pugixml.hpp>

namespace ZelBench {

namespace {

std::shared_ptr<OrvaneXML::XCXMLTree> parseOwn(const std::string& path)
{
    CFileSource source(path);
    return std::shared_ptr<OrvaneXML::XCXMLTree>(
        OrvaneXML::CXMLTreeReader(nullptr).ReadTree(&source));
}

std::shared_ptr<pugi::xml_document> parsePugi(const std::string& path)
{
    auto tree = std::make_shared<pugi::xml_document>();
    std::ifstream source(path, std::ios::binary);
    if (!tree->load(source))
        throw std::runtime_error("The other parser can't read the elements");
    return tree;
}

class CNullWriter : public pugi::xml_writer {
public:
    void write(const void*, std::size_t size) override { nbBytes += size; }

    std::size_t nbBytes = 0;
};

std::string path()
{
    return fileWith("elements.zel", elementsFile());
}

const CRow kParse("xml_parse", [] {
    return SPair{[in = path()] { return secondsOf([&] { return parsePugi(in); }); },
                 [in = path()] { return secondsOf([&] { return parseOwn(in); }); }};
});

const CRow kParsePeak("xml_parse_peak", [] {
    return SPair{[in = path()] { return memoryOf([&] { return parsePugi(in); }).peak; },
                 [in = path()] { return memoryOf([&] { return parseOwn(in); }).peak; }};
});

const CRow kWrite("xml_write", [] {
    return SPair{[tree = parsePugi(path())] {
                     return secondsOf([&] {
                         CNullWriter out;
                         tree->save(out, "\t", pugi::format_indent);
                         return out.nbBytes;
                     });
                 },
                 [tree = parseOwn(path())] {
                     return secondsOf([&] {
                         CNullTarget out;
                         tree->Write(&out);
                         return out.nbBytes;
                     });
                 }};
});

const CRow kDocument("elements_load", [] {
    return SPair{
        [in = path()] { return secondsOf([&] { return parsePugi(in); }); },
        [in = path()] { return secondsOf([&] { return CDocument::from(CFileSource(in)); }); }};
});

const CRow kDestroy("elements_destroy", [] {
    return SPair{[in = path()] {
                     auto tree = parsePugi(in);
                     const double start = processSeconds();
                     tree.reset();
                     return processSeconds() - start;
                 },
                 [in = path()] {
                     CDocument document = CDocument::from(CFileSource(in));
                     const double start = processSeconds();
                     document.release();
                     return processSeconds() - start;
                 }};
});

} // namespace

} // namespace ZelBench
