#include "tests/toolRun.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

namespace fs = std::filesystem;

static fs::path pathOf(const std::string& name)
{
    return std::u8string(name.begin(), name.end());
}

static std::string nameOf(const fs::path& path)
{
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

CTempFolder::CTempFolder()
{
    std::random_device random;
    do
        mPath = fs::temp_directory_path() / ("zel_test_" + std::to_string(random()));
    while (!fs::create_directory(mPath));
}

CTempFolder::~CTempFolder()
{
    std::error_code error;
    fs::remove_all(mPath, error);
}

std::string CTempFolder::file(const std::string& name) const
{
    return nameOf((mPath / pathOf(name)).make_preferred());
}

std::string CTempFolder::put(const std::string& name, const std::string& text) const
{
    std::ofstream(mPath / pathOf(name), std::ios::binary) << text;
    return file(name);
}

std::vector<std::string> CTempFolder::names() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(mPath))
        names.push_back(nameOf(entry.path().filename()));
    std::sort(names.begin(), names.end());
    return names;
}

std::string contents(const std::string& path)
{
    std::ifstream file(pathOf(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string sample(const std::string& name)
{
    return std::string(ZEL_TEST_DATA) + "/samples/" + name;
}

std::string minimalWith(const std::string& elements)
{
    std::string text = contents(sample("minimal.zel"));
    return text.insert(text.rfind("</Zel.File>"), elements);
}

CRun runTool(std::vector<std::string> arguments, const std::optional<std::string>& input)
{
    arguments.insert(arguments.begin(), toolPath());
    return runProgram(std::move(arguments), input);
}

const char* toolPath()
{
#ifdef ZEL_TOOL
    return ZEL_TOOL;
#else
    return nullptr;
#endif
}
