#pragma once

#include "tools/CProgressBar.h"

#include <zel/IZelFeedback.h>

#include <cstdint>
#include <functional>
#include <string>

namespace tool {

/// Puts the messages of a document on standard error, one a line, and shows how far it is. Cancels
/// once the user asks to stop, and is silent from then on.
class CToolFeedback final : public OvZel::IZelFeedback {
public:
    using CReceiver = std::function<void(const std::string&)>;

    void message(OvZel::IZelMgr* document, const char* text) override;
    bool progress(OvZel::IZelMgr* document, std::int32_t position, std::int32_t total) override;

    /// From here on messages go there, as one line without its end.
    void setReceiver(const CReceiver& receiver) { mReceiver = receiver; }
    void clearBar() { mBar.clear(); }
    /// The number of sections whose content is not in the document.
    std::uint64_t getNbLostBlocks() const { return mNbLostBlocks; }

private:
    CReceiver mReceiver;
    CProgressBar mBar;
    std::uint64_t mNbLostBlocks = 0;
};

/// Whether the message is about a section that the library does not know, and keeps as it is.
bool isUnknownBlock(const std::string& message);

} // namespace tool
