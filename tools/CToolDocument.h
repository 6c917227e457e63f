#pragma once

#include "tools/CFileReadStream.h"
#include "tools/CToolFeedback.h"
#include "tools/THeld.h"

#include <zel/IZelMgr.h>

#include <string>

namespace tool {

/// A document of the library, loaded from and saved to files. Messages go to standard error.
class CToolDocument {
public:
    /// A new, empty document.
    CToolDocument();

    OvZel::IZelMgr* operator->() const { return mMgr.operator->(); }
    OvZel::IZelMgr& operator*() const { return *mMgr; }

    /// Throws CToolError: eNotReadable when the library refuses it, eIoError when the file fails.
    void read(CFileReadStream& stream, const std::string& path);
    /// Throws CToolError: eNotReadable when the document cannot be saved for a reason of its own,
    /// eIoError when the file fails. The target is then as it was.
    void save(const std::string& target);

private:
    CToolFeedback mFeedback; // outlives the document
    THeld<OvZel::IZelMgr> mMgr;
};

} // namespace tool
