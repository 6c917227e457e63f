#pragma once

#include <zel/IZelWriteStream.h>

#include <fstream>

namespace example {

/// A file as the library writes it.
class CFileWriter : public OvZel::IZelWriteStream {
public:
    explicit CFileWriter(const char* path) : mFile(path, std::ios::binary) {}

    /// The library ignores the result of write, so the file is asked at the end.
    bool close()
    {
        mFile.close();
        return mFile.good();
    }

    std::uint32_t write(const void* buffer, std::uint32_t size) override
    {
        mFile.write(static_cast<const char*>(buffer), size);
        return size;
    }

private:
    std::ofstream mFile;
};

} // namespace example
