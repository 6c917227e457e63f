#pragma once

#include <zel/IZelWriteStream.h>

#include <string>

namespace tool {

/// A file as the library writes it, by an open descriptor. The library takes every write as
/// complete, so the stream remembers the first failure and drops everything behind it.
class CFileWriteStream final : public OvZel::IZelWriteStream {
public:
    explicit CFileWriteStream(int descriptor) : mDescriptor(descriptor) {}

    std::uint32_t write(const void* buffer, std::uint32_t size) override;
    void writeText(const std::string& text);
    /// Passes on what is still held back.
    void flush();
    bool hasFailed() const { return mFailed; }
    /// Why the first failed write failed.
    const std::string& getFailure() const { return mFailure; }

private:
    int mDescriptor;
    std::string mPending;
    bool mFailed = false;
    std::string mFailure;
};

} // namespace tool
