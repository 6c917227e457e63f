// zel_random_documents SEED COUNT FOLDER: writes the random documents of COUNT seeds, from SEED on,
// into the folder, which is there: SEED.zel and so on.

#include "tests/random/CRandomDocument.h"
#include "tests/support/CClientDocument.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace {

bool parse(const char* text, std::uint64_t& number)
{
    const char* end = text + std::strlen(text);
    return std::from_chars(text, end, number).ptr == end && end != text;
}

bool writeDocument(std::uint64_t seed, const std::string& folder)
{
    ZelTest::CClientDocument document;
    ZelTest::CRandomDocument(seed).fill(*document.get());
    const bool saved = document.write();
    for (const std::string& message : document.takeMessages())
        std::fprintf(stderr, "%s\n", message.c_str());
    std::ofstream file(folder + '/' + std::to_string(seed) + ".zel", std::ios::binary);
    file << document.written << std::flush;
    return saved && file.good();
}

} // namespace

int main(int argc, char** argv)
{
    std::uint64_t first = 0;
    std::uint64_t count = 0;
    if (argc != 4 || !parse(argv[1], first) || !parse(argv[2], count)) {
        std::fprintf(stderr, "usage: zel_random_documents SEED COUNT FOLDER\n");
        return 2;
    }
    for (std::uint64_t seed = first; seed < first + count; ++seed)
        if (!writeDocument(seed, argv[3])) {
            std::fprintf(stderr, "seed %llu failed\n", static_cast<unsigned long long>(seed));
            return 1;
        }
    return 0;
}
