#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tool {

/// What the tool asks of the operating system beyond the standard library. Descriptors are plain
/// numbers, -1 for none; after a failure lastFailure says why.

/// What main was called with. Texts are UTF-8 on every system that has characters beyond bytes.
std::vector<std::string> programArguments(int argc, char** argv);
/// The path by which a file of that name is opened.
std::filesystem::path filePath(const std::string& name);
/// The path of that name as it stands, for its parts.
std::filesystem::path plainPath(const std::string& name);
/// That path in normal form and without its root; a drive is the first folder in it.
std::filesystem::path rootlessPath(const std::string& name);
/// That path from the root on. For a link to a file, the path of that file.
std::filesystem::path wholePath(const std::string& name);
/// The name of a path, the inverse of filePath and plainPath.
std::string fileName(const std::filesystem::path& path);

/// A duplicate of standard output; the descriptor itself leads to standard error from here on.
int takeStandardOutput();
/// What is written to the descriptor of standard output from here on leads nowhere; what was
/// printed before gets where it led.
void dropStandardOutput();
/// Opens a file that must not exist yet, with the permissions of another file if that exists.
int createFile(const std::string& path, const std::string& permissionsOf);
/// False when not all bytes could be written, also when the user asks to stop meanwhile.
bool writeAll(int descriptor, const char* bytes, std::size_t size);
/// Waits until the file's bytes are on the disk.
bool flushToDisk(int descriptor);
bool closeFile(int descriptor);
/// Puts a file in the place of another one of the same folder, in one step.
bool replaceFile(const std::string& from, const std::string& to);
void removeFile(const std::string& path);
/// Whether standard error leads to a terminal.
bool isErrorTerminal();
long processNumber();
std::string lastFailure();

} // namespace tool
