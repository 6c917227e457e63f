#pragma once

#include <zel/IZelReadStream.h>
#include <zel/IZelWriteStream.h>
#include <zel/xml/XIXMLReadStream.h>
#include <zel/xml/XIXMLWriteStream.h>

#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>

namespace ZelBench {

/// A text in memory, which must outlive the stream. Counts the bytes that it delivers.
class CTextSource : public OvZel::IZelReadStream {
public:
    explicit CTextSource(std::string_view text) : mText(text) {}

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        const std::size_t count = mText.copy(static_cast<char*>(buffer), size, mPosition);
        mPosition += count;
        nbBytes += count;
        return static_cast<std::uint32_t>(count);
    }
    std::int64_t getPosition() override { return static_cast<std::int64_t>(mPosition); }
    void setPosition(std::int64_t position) override
    {
        mPosition = static_cast<std::size_t>(position);
    }

    std::uint64_t nbBytes = 0;

private:
    std::string_view mText;
    std::size_t mPosition = 0;
};

/// A descriptor that closes itself.
class CFile {
public:
    CFile(const std::string& path, int flags) : mFile(::open(path.c_str(), flags, 0666))
    {
        if (mFile < 0)
            throw std::runtime_error("Can't open " + path);
    }
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    ~CFile() { ::close(mFile); }

    int get() const { return mFile; }

private:
    int mFile;
};

/// A file, for the document and for the tree.
class CFileSource : public OvZel::IZelReadStream, public OrvaneXML::XIXMLReadStream {
public:
    explicit CFileSource(const std::string& path) : mFile(path, O_RDONLY) {}

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        const ssize_t count = ::read(mFile.get(), buffer, size);
        return count > 0 ? static_cast<std::uint32_t>(count) : 0;
    }
    std::uint32_t Read(void* buffer, std::uint32_t size) override { return read(buffer, size); }
    std::int64_t getPosition() override { return ::lseek(mFile.get(), 0, SEEK_CUR); }
    void setPosition(std::int64_t position) override { ::lseek(mFile.get(), position, SEEK_SET); }

private:
    CFile mFile;
};

/// Takes everything and keeps nothing.
class CNullTarget : public OvZel::IZelWriteStream, public OrvaneXML::XIXMLWriteStream {
public:
    std::uint32_t write(const void*, std::uint32_t size) override
    {
        nbBytes += size;
        return size;
    }
    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        return write(buffer, size);
    }

    std::uint64_t nbBytes = 0;
};

class CTextTarget : public OvZel::IZelWriteStream {
public:
    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        text.append(static_cast<const char*>(buffer), size);
        return size;
    }

    std::string text;
};

class CFileTarget : public OvZel::IZelWriteStream {
public:
    explicit CFileTarget(const std::string& path) : mFile(path, O_WRONLY | O_CREAT | O_TRUNC) {}

    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        if (::write(mFile.get(), buffer, size) != static_cast<ssize_t>(size))
            throw std::runtime_error("Can't write all");
        return size;
    }

private:
    CFile mFile;
};

/// Where rows put their files: the folder that bench/run makes and removes.
inline std::string workPath(const std::string& name)
{
    const char* folder = std::getenv("ZEL_BENCH_FOLDER");
    return (folder != nullptr ? folder : "/tmp") + ("/" + name);
}

inline std::string fileWith(const std::string& name, std::string_view text)
{
    std::string path = workPath(name);
    CFileTarget file(path);
    file.write(text.data(), static_cast<std::uint32_t>(text.size()));
    return path;
}

} // namespace ZelBench
