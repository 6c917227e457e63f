#pragma once

#include <zel/IZelMgr.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace ZelBench {

/// A document that releases itself. A message fails the row: what went wrong isn't worth measuring.
class CDocument {
public:
    CDocument()
    {
        OvZel::IZelMgr::newZelMgr(&mDocument, OvZel::IZelMgr::getZELVersion(), &feedback());
        if (mDocument == nullptr)
            throw std::runtime_error("No document");
    }
    CDocument(CDocument&& other) noexcept : mDocument(std::exchange(other.mDocument, nullptr)) {}
    CDocument& operator=(CDocument&&) = delete;
    ~CDocument() { release(); }

    OvZel::IZelMgr* operator->() const { return mDocument; }
    OvZel::IZelMgr* get() const { return mDocument; }

    void release()
    {
        if (mDocument != nullptr)
            std::exchange(mDocument, nullptr)->Release();
    }

    /// Reads all of a source, of which this takes a temporary too.
    static CDocument from(OvZel::IZelReadStream&& source)
    {
        CDocument document;
        if (!document->read(&source, nullptr))
            throw std::runtime_error("The document can't be read");
        return document;
    }

    void write(OvZel::IZelWriteStream&& target) const
    {
        if (!mDocument->write(&target, nullptr))
            throw std::runtime_error("The document can't be written");
    }

private:
    class CFeedback : public OvZel::IZelFeedback {
    public:
        void message(OvZel::IZelMgr*, const char* text) override { throw std::runtime_error(text); }
        bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override { return true; }
    };

    static CFeedback& feedback()
    {
        static CFeedback only;
        return only;
    }

    OvZel::IZelMgr* mDocument = nullptr;
};

} // namespace ZelBench
