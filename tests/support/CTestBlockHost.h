#pragma once

#include "core/CZelMgrRef.h"
#include "core/TSharedPtr.h"
#include "core/TZelComPtr.h"
#include "xml/CZelCancelled.h"
#include "xml/IBlockHost.h"

#include <zel/IZelFeedback.h>

#include <string>
#include <utility>
#include <vector>

namespace ZelTest {

/// Stands in for a document: gathers its messages and progress, and can cancel.
class CTestBlockHost : public OvZel::IBlockHost, private OvZel::IZelFeedback {
public:
    using CReport = std::pair<std::int32_t, std::int32_t>;

    CTestBlockHost()
        : mBlock(new OvZel::TSharedPtr<int>(&mAlive)),
          mRef(new OvZel::CZelMgrRef(nullptr, hold(mBlock), this))
    {
    }
    CTestBlockHost(const CTestBlockHost&) = delete;
    CTestBlockHost& operator=(const CTestBlockHost&) = delete;
    ~CTestBlockHost()
    {
        mBlock->resetPtr();
        mBlock->detachRef();
    }

    OvZel::IZelMgrRef& blockMgrRef() override { return *mRef; }
    void sendMessage(const char* text) override { messages.emplace_back(text); }
    void reportProgress(std::int32_t position, std::int32_t total) override
    {
        reports.emplace_back(position, total);
        if (cancel)
            throw OvZel::CZelCancelled();
    }
    OvZel::IZelExtStorageWriter* storageWriter() override { return storage; }

    std::vector<std::string> messages;
    std::vector<CReport> reports;
    bool cancel = false;
    OvZel::IZelExtStorageWriter* storage = nullptr;

private:
    static OvZel::TSharedPtr<int>* hold(OvZel::TSharedPtr<int>* block)
    {
        block->addRef();
        return block;
    }

    void message(OvZel::IZelMgr*, const char* text) override { sendMessage(text); }
    bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override { return true; }

    int mAlive = 0;
    OvZel::TSharedPtr<int>* mBlock;
    OvZel::TZelComPtr<OvZel::CZelMgrRef> mRef;
};

} // namespace ZelTest
