#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

TEST(ToolSystem, OfPosix)
{
    GTEST_SKIP() << "full and closed outputs, permissions and links are made with a shell of POSIX";
}

#ifdef ZEL_TOOL // without the tool there is nothing to test

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// With this in front the system itself takes paths of any length.
fs::path unlimited(const std::string& path)
{
    return "\\\\?\\" + path;
}

bool exists(const std::string& path)
{
    return GetFileAttributesW(unlimited(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The standard library lists no folder of a longer path than 260 characters.
void removeTree(const std::string& folder)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(unlimited(folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::string name = fs::path(found.cFileName).string();
        const std::string path = folder + "\\" + name;
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            DeleteFileW(unlimited(path).c_str());
        else if (name != "." && name != "..")
            removeTree(path);
    } while (FindNextFileW(search, &found) != 0);
    FindClose(search);
    RemoveDirectoryW(unlimited(folder).c_str());
}

class ToolPaths : public testing::Test {
protected:
    ~ToolPaths() override
    {
        removeTree(mFolder.file("in"));
        removeTree(mFolder.file("out"));
    }

    /// A document whose name is longer than 260 characters.
    std::string putDeep() const
    {
        std::string folder = "in";
        for (const char letter : {'a', 'b', 'c'}) {
            fs::create_directory(unlimited(mFolder.file(folder)));
            folder += "/" + std::string(100, letter);
        }
        fs::create_directory(unlimited(mFolder.file(folder)));
        const std::string file = mFolder.file(folder + "/d.zel");
        fs::copy_file(sample("minimal.zel"), unlimited(file));
        return file;
    }

    /// Where the file goes below a folder for files of the whole machine.
    std::string below(const std::string& folder, std::string file) const
    {
        return mFolder.file(folder) + "\\" + file.erase(file.find(':'), 1);
    }

    CTempFolder mFolder;
};

TEST_F(ToolPaths, MayBeLong)
{
    const std::string deep = putDeep();
    EXPECT_EQ(runTool({"check", deep}).code, 0);
    EXPECT_EQ(runTool({"rewrite", deep, deep}).code, 0);
    const CRun run = runTool({"info", "--recursive", mFolder.file("in")});
    EXPECT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(run.output, testing::StartsWith(deep + "\t"));
}

TEST_F(ToolPaths, HaveTheirDriveAsAFolderBelowThatOfTheOutput)
{
    const std::string deep = putDeep();
    const std::string plain = mFolder.put("plain.zel", contents(sample("minimal.zel")));
    const struct {
        std::string file;
        std::string target;
    } cases[] = {
        {plain, below("out", plain)},
        {unlimited(plain).string(), below("out", plain)},
        {deep, below("out", deep)},
        {unlimited(deep).string(), below("out", deep)},
    };
    for (const auto& [file, target] : cases) {
        removeTree(mFolder.file("out"));
        const std::string before = contents(plain);
        const CRun run = runTool({"rewrite", "--output-dir", mFolder.file("out"), file});
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_TRUE(exists(target)) << target;
        EXPECT_EQ(contents(plain), before);
    }
}

TEST_F(ToolPaths, StayBelowTheFolderOfTheOutput)
{
    const std::string drive = mFolder.file("").substr(0, 2);
    for (const std::string file : {"..\\a.zel", "a/../../a.zel"})
        for (const std::string& start : {std::string(), drive}) {
            const CRun run =
                runTool({"rewrite", "--output-dir", mFolder.file("out"), start + file});
            EXPECT_EQ(run.code, 74);
            EXPECT_THAT(run.messages, HasSubstr("would leave the folder of the output"));
        }
}

} // namespace

#endif
