#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A folder of its own for one test, gone with the object.
class CTempFolder {
public:
    CTempFolder();
    ~CTempFolder();
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    /// The whole name of a file in the folder.
    std::string file(const std::string& name) const;
    /// Makes a file and gives its whole name.
    std::string put(const std::string& name, const std::string& text) const;
    /// The names in the folder, sorted.
    std::vector<std::string> names() const;

private:
    std::filesystem::path mPath;
};

std::string contents(const std::string& path);
/// A file of the test data.
std::string sample(const std::string& name);
/// The text of a small document with the given elements in front of the end.
std::string minimalWith(const std::string& elements);

struct CRun {
    int code = -1; ///< of a program that was ended by a signal, 128 and its number
    std::string output;
    std::string messages;
    /// The most memory that the program had at once. Never less than what this process has.
    std::size_t peakBytes = 0;
};

/// Runs a program found by the search path and waits for its end. On standard input it reads the
/// given text, or else what these tests would.
CRun runProgram(std::vector<std::string> arguments, const std::optional<std::string>& input = {});
/// Runs the tool.
CRun runTool(std::vector<std::string> arguments, const std::optional<std::string>& input = {});
/// Null in a build without the tool.
const char* toolPath();
