#pragma once

#include <zel/IZelFeedback.h>

namespace tool {

/// Puts the messages of a document on standard error, one a line, and never cancels.
class CToolFeedback final : public OvZel::IZelFeedback {
public:
    void message(OvZel::IZelMgr* document, const char* text) override;
    bool progress(OvZel::IZelMgr*, std::int32_t, std::int32_t) override { return true; }
};

} // namespace tool
