#pragma once

#include "tools/CFileWriteStream.h"

#include <string>

namespace tool {

/// A file that is replaced as a whole or not at all: the bytes go to a new file beside it, which
/// takes its place once everything is on the disk. The target may be the file that is being read.
class CAtomicFile {
public:
    /// Throws CToolError(eIoError) when no file can be made beside the target, or when the target
    /// is no ordinary file. A link to a file is followed; one that leads nowhere is itself replaced
    /// by the file.
    explicit CAtomicFile(const std::string& target);
    /// Removes the new file unless it was committed.
    ~CAtomicFile();
    CAtomicFile(const CAtomicFile&) = delete;
    CAtomicFile& operator=(const CAtomicFile&) = delete;

    CFileWriteStream& stream() { return mStream; }
    /// Throws CToolError(eIoError) when a write failed; the target is then as it was. A
    /// request to stop throws what checkInterrupt does, up to the moment of the replacement.
    void commit();
    /// Throws what commit would throw for the writes up to now, or what checkInterrupt throws.
    void check();

private:
    [[noreturn]] void fail(const std::string& why) const;

    std::string mTarget;
    std::string mTemporary;
    int mDescriptor;
    CFileWriteStream mStream;
};

} // namespace tool
