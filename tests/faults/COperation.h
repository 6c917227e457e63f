#pragma once

#include "tests/faults/CQuietFeedback.h"
#include "tests/faults/CTextStreams.h"

#include <zel/IZelMgr.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ZelTest {

/// A document that hears its messages without taking memory.
class CQuietDocument {
public:
    CQuietDocument() { OvZel::IZelMgr::newZelMgr(&mDocument, OvZel::eVersionZel, &feedback); }
    explicit CQuietDocument(const std::string& text) : CQuietDocument() { read(text); }
    ~CQuietDocument()
    {
        if (mDocument != nullptr)
            mDocument->Release();
    }
    CQuietDocument(const CQuietDocument&) = delete;
    CQuietDocument& operator=(const CQuietDocument&) = delete;

    OvZel::IZelMgr* operator->() const { return mDocument; }
    OvZel::IZelMgr* get() const { return mDocument; }
    OvZel::IZelMgrEx& more() const { return *mDocument->getMgrEx(OvZel::eVersionZel); }

    bool read(const std::string& text)
    {
        CTextReader stream(text);
        return mDocument->read(&stream, nullptr);
    }
    /// What a save gives, "" when it fails.
    std::string save() const;

    CQuietFeedback feedback;

private:
    OvZel::IZelMgr* mDocument = nullptr;
};

/// Something that a client asks of the library, made ready, and what is expected of it.
class COperation {
public:
    virtual ~COperation() = default;

    /// What the client does. Takes no memory itself.
    virtual bool run() = 0;
    /// What it led to, as a text that is the same each time.
    virtual std::string result() = 0;
    /// Whether what comes next works, behind a failure too.
    virtual bool goesOn() = 0;
    virtual int nbMessages() = 0;
    virtual const char* lastMessage() = 0;

    /// Null where the operation reads nothing or writes nothing.
    virtual CTextReader* reader() { return nullptr; }
    virtual CTextWriter* writer() { return nullptr; }
    virtual CQuietFeedback* feedback() { return nullptr; }

    bool isSilent = false; ///< a question that answers "nothing" instead of telling
    bool mayThrow = false; ///< failures reach the client as exceptions
};

struct CNamedOperation {
    std::string name;
    std::function<std::unique_ptr<COperation>()> make;
};

/// All of them.
const std::vector<CNamedOperation>& allOperations();

/// So many bytes at most does a stream of these tests deliver at once, so that it has many calls.
constexpr std::size_t kStep = 1500;

} // namespace ZelTest
