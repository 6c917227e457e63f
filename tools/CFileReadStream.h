#pragma once

#include <zel/IZelReadStream.h>

#include <fstream>
#include <string>

namespace tool {

/// A file as the library reads it. The library takes a failed read for the end of the file, so the
/// stream remembers the failure. A request to stop ends the file in the same way.
class CFileReadStream final : public OvZel::IZelReadStream {
public:
    /// Throws CToolError(eIoError) when the file cannot be opened or has no positions.
    explicit CFileReadStream(const std::string& path);

    std::uint32_t read(void* buffer, std::uint32_t size) override;
    std::int64_t getPosition() override;
    void setPosition(std::int64_t position) override;

    /// Throws CToolError(eIoError) when a read or a change of position has failed,
    /// or what checkInterrupt throws.
    void check() const;

private:
    std::string mPath;
    std::ifstream mFile;
    bool mFailed = false;
};

} // namespace tool
