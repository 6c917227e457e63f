#pragma once

#include <zel/IZelFeedback.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ZelTest {

/// Collects what a document tells its client.
class CTestFeedback : public OvZel::IZelFeedback {
public:
    void message(OvZel::IZelMgr* document, const char* text) override
    {
        lastDocument = document;
        messages.emplace_back(text);
    }

    bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override { return !cancels; }

    /// The messages since the last call.
    std::vector<std::string> take() { return std::exchange(messages, {}); }

    std::vector<std::string> messages;
    OvZel::IZelMgr* lastDocument = nullptr;
    bool cancels = false;
};

} // namespace ZelTest
