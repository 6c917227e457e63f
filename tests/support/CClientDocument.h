#pragma once

#include "tests/support/CMemoryReadStream.h"
#include "tests/support/CMemoryWriteStream.h"
#include "tests/support/CStepFeedback.h"

#include <zel/IZelMgr.h>

#include <string>
#include <vector>

namespace ZelTest {

/// A document as a client has it, with all that it tells.
class CClientDocument {
public:
    using CMessages = std::vector<std::string>;

    CClientDocument() { OvZel::IZelMgr::newZelMgr(&mDocument, OvZel::eVersionZel, &feedback); }
    ~CClientDocument() { release(); }
    CClientDocument(const CClientDocument&) = delete;
    CClientDocument& operator=(const CClientDocument&) = delete;

    OvZel::IZelMgr* operator->() const { return mDocument; }
    OvZel::IZelMgr* get() const { return mDocument; }
    OvZel::IZelMgrEx& more() const { return *mDocument->getMgrEx(OvZel::eVersionZel); }

    void release()
    {
        if (OvZel::IZelMgr* old = std::exchange(mDocument, nullptr))
            old->Release();
    }

    bool read(const std::string& text, OvZel::IZelExtStorageReader* storage = nullptr,
              std::size_t step = CMemoryReadStream::kWhole)
    {
        CMemoryReadStream stream(text, step);
        return mDocument->read(&stream, storage);
    }

    void readCData(const std::string& text)
    {
        CMemoryReadStream stream(text);
        mDocument->readCData(&stream, nullptr);
    }

    bool write(OvZel::IZelExtStorageWriter* storage = nullptr)
    {
        CMemoryWriteStream stream;
        const bool good = mDocument->write(&stream, storage);
        written = stream.text;
        return good;
    }

    /// What a save gives.
    std::string save()
    {
        write();
        return written;
    }

    CMessages takeMessages() { return feedback.take(); }

    CStepFeedback feedback;
    std::string written; ///< by the last write

private:
    OvZel::IZelMgr* mDocument = nullptr;
};

} // namespace ZelTest
