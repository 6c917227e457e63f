#include "tools/CResumeLog.h"

#include "tools/CFileRun.h"
#include "tools/platform.h"
#include "tools/stableHash.h"

#include <algorithm>
#include <charconv>

namespace tool {

static std::string escaped(const std::string& file)
{
    std::string text;
    for (const char c : file) {
        if (c == '\n')
            text += "\\n";
        else if (c == '\\')
            text += "\\\\";
        else
            text += c;
    }
    return text;
}

static std::string unescaped(const std::string& text)
{
    std::string file;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == '\\' && i + 1 < text.size();
        if (isEscape)
            ++i;
        file += isEscape && text[i] == 'n' ? '\n' : text[i];
    }
    return file;
}

CResumeLog::CKey CResumeLog::keyOf(const std::string& file)
{
    return {stableHash(file, 1), stableHash(file, 2)};
}

void CResumeLog::refuse(const std::string& why) const
{
    throw CRunError(eUsage, mPath + ": " + why);
}

void CResumeLog::take(const std::string& line)
{
    int code = -1;
    const char* const end = line.data() + line.size();
    const auto [behind, error] = std::from_chars(line.data(), end, code);
    if (error != std::errc() || behind == end || *behind != '\t')
        refuse("not the log of a run");
    if (code != eDone && code != eFindings && code != eNotReadable)
        return;
    mWorst = std::max(mWorst, static_cast<EExit>(code));
    mDone.push_back(keyOf(unescaped(std::string(behind + 1, end))));
}

// Gives the number of bytes up to the end of the last whole line.
std::uintmax_t CResumeLog::read(const std::string& head)
{
    std::error_code error;
    std::ifstream file(filePath(mPath), std::ios::binary);
    if (!file.is_open() && std::filesystem::exists(filePath(mPath), error))
        throw CRunError(eIoError, mPath + ": can't open: " + lastFailure());
    std::uintmax_t size = 0;
    std::string line;
    for (; std::getline(file, line) && !file.eof(); size += line.size() + 1) {
        if (size > 0)
            take(line);
        else if (line != head)
            refuse("not the log of a run that begins with \"" + head + "\"");
    }
    if (file.bad())
        throw CRunError(eIoError, mPath + ": can't read");
    if (size == 0 && !head.starts_with(line))
        refuse("not the log of a run");
    std::sort(mDone.begin(), mDone.end());
    mDone.erase(std::unique(mDone.begin(), mDone.end()), mDone.end());
    return size;
}

// With another folder for the output, say, or where more is forced, nothing would be done yet.
static std::string headOf(const CFileRun& run)
{
    std::string head = "zel " + run.command;
    for (const std::string& argument : run.workerArguments)
        head += ' ' + escaped(argument);
    return head;
}

CResumeLog::CResumeLog(const CFileRun& run) : mPath(run.log)
{
    const std::string head = headOf(run);
    const std::uintmax_t size = read(head);
    const std::filesystem::path file = filePath(mPath);
    std::error_code error;
    if (std::filesystem::exists(file, error) && std::filesystem::file_size(file, error) > size)
        std::filesystem::resize_file(file, size, error);
    mFile.open(file, std::ios::binary | std::ios::app);
    if (size == 0)
        mFile << head << '\n' << std::flush;
    if (error || !mFile)
        throw CRunError(eIoError, mPath + ": can't write: " + lastFailure());
}

bool CResumeLog::has(const std::string& file) const
{
    return std::binary_search(mDone.begin(), mDone.end(), keyOf(file));
}

void CResumeLog::add(const std::string& file, EExit code)
{
    // One write for each line: a kill between two leaves whole lines.
    const std::string line = std::to_string(code) + '\t' + escaped(file) + '\n';
    mFile.write(line.data(), static_cast<std::streamsize>(line.size()));
    if (!mFile.flush())
        throw CRunError(eIoError, mPath + ": can't write: " + lastFailure());
}

} // namespace tool
