#pragma once

#include "core/CZelMgrRef.h"
#include "core/TSharedPtr.h"
#include "core/TZelComPtr.h"
#include "tests/support/CTestFeedback.h"

#include <string>
#include <utility>
#include <vector>

namespace ZelTest {

/// Stands in for a document where only its reference object, its life and its feedback matter.
class CTestDocument {
public:
    CTestDocument() : mBlock(new OvZel::TSharedPtr<CBody>(new CBody))
    {
        mBlock->addRef();
        mRef = OvZel::TZelComPtr(new OvZel::CZelMgrRef(address(), mBlock, &mFeedback));
    }
    ~CTestDocument() { die(); }
    CTestDocument(const CTestDocument&) = delete;
    CTestDocument& operator=(const CTestDocument&) = delete;

    /// As the last Release of a client: the body goes first, then its hold on the reference object.
    void die()
    {
        if (mBlock == nullptr)
            return;
        std::exchange(mBlock, nullptr)->release();
        mRef.reset();
    }

    OvZel::CZelMgrRef* ref() const { return mRef.get(); }
    OvZel::IZelSharedPtrBase* block() const { return mBlock; }
    /// What getMgr answers; nothing lies there.
    static OvZel::IZelMgr* address() { return reinterpret_cast<OvZel::IZelMgr*>(&sPlace); }
    std::vector<std::string> takeMessages() { return mFeedback.take(); }

private:
    struct CBody {};

    static inline char sPlace = 0;

    CTestFeedback mFeedback;
    OvZel::TSharedPtr<CBody>* mBlock;
    OvZel::TZelComPtr<OvZel::CZelMgrRef> mRef;
};

} // namespace ZelTest
