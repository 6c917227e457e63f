#pragma once

#include "tools/CFileReadStream.h"
#include "tools/CToolFeedback.h"
#include "tools/THeld.h"

#include <zel/IZelMgr.h>

#include <string>

namespace tool {

/// A document of the library, loaded from and saved to files. Messages go to standard error, and a
/// request to stop ends each operation with what checkInterrupt throws.
class CToolDocument {
public:
    /// A new, empty document.
    CToolDocument();

    OvZel::IZelMgr* operator->() const { return mMgr.operator->(); }
    OvZel::IZelMgr& operator*() const { return *mMgr; }
    CToolFeedback& feedback() { return mFeedback; }

    /// Throws CToolError: eNotReadable when the library refuses it, eIoError when the file fails.
    /// A null reader keeps the meshes in the document.
    void read(CFileReadStream& stream, const std::string& path,
              OvZel::IZelExtStorageReader* reader = nullptr);
    /// Throws CToolError: eNotReadable when the document cannot be saved for a reason of its own,
    /// eIoError when the file fails. The target is then as it was. Writer and version as in
    /// IZelMgr::writeVersion.
    void save(const std::string& target, OvZel::IZelExtStorageWriter* writer = nullptr,
              const OvZel::CZelVersion* version = nullptr);

private:
    CToolFeedback mFeedback; // outlives the document
    THeld<OvZel::IZelMgr> mMgr;
};

} // namespace tool
