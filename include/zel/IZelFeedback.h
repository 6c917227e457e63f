#pragma once

#include <cstdint>

namespace OvZel {

class IZelMgr;

/// Errors, warnings and progress, received by the client on the thread that called the library.
/// Must outlive the document.
class IZelFeedback {
public:
    /// An error or a warning. The document is null when making one failed. What this throws is
    /// swallowed.
    virtual void message(IZelMgr* document, const char* text) = 0;
    /// Reports position out of total; false cancels the running operation. What this throws fails
    /// the block that is being read, which is skipped, and a save as a whole.
    virtual bool progress(IZelMgr* document, std::int32_t position, std::int32_t total) = 0;

protected:
    ~IZelFeedback() = default;
};

} // namespace OvZel
