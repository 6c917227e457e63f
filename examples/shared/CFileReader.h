#pragma once

#include <zel/IZelReadStream.h>

#include <fstream>

namespace example {

/// A file as the library reads it.
class CFileReader : public OvZel::IZelReadStream {
public:
    explicit CFileReader(const char* path) : mFile(path, std::ios::binary) {}

    bool isOpen() const { return mFile.is_open(); }

    std::uint32_t read(void* buffer, std::uint32_t size) override
    {
        mFile.read(static_cast<char*>(buffer), size);
        mFile.clear(); // at its end a file would refuse to tell or change its position
        return static_cast<std::uint32_t>(mFile.gcount());
    }
    std::int64_t getPosition() override { return mFile.tellg(); }
    void setPosition(std::int64_t position) override { mFile.seekg(position); }

private:
    std::ifstream mFile;
};

} // namespace example
