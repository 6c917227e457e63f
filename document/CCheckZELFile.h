#pragma once

#include "document/CHeadParser.h"

#include <zel/CZelVersion.h>

namespace OvZel {

/// Finds the format instruction at the head of a file. A file without one ends in an exception.
class CCheckZELFile : public CHeadParser {
public:
    /// 0.0.0 when there is no readable version.
    const CZelVersion& library() const { return mLibrary; }
    const CZelVersion& minVersion() const { return mMinVersion; }
    const CZelVersion& safeVersion() const { return mSafeVersion; }
    std::int32_t fileMajor() const { return mFileMajor; }
    std::int32_t fileMinor() const { return mFileMinor; }

private:
    bool Instruction(const char* target, const char* content) override;

    CZelVersion mLibrary;
    CZelVersion mMinVersion;
    CZelVersion mSafeVersion;
    std::int32_t mFileMajor = 0;
    std::int32_t mFileMinor = 0;
};

} // namespace OvZel
