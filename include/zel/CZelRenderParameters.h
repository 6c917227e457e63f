#pragma once

#include <cstdint>
#include <string>

namespace OvZel {

/// A free table of values that a render configuration keeps with the document.
///
/// The library interprets none of it. The record belongs to the document and is changed in place;
/// client and library share the layout of std::string.
struct CZelRenderParameters {
    static constexpr int kNbEntries = 12;

    struct CEntry {
        double value = 0.0;
        double minimum = 0.0;
        double maximum = 100.0;
        bool flag = false;
        std::string text;
        /// Byte 0 is unused and 0; red, green and blue are bytes 1, 2 and 3.
        std::uint8_t color[4] = {};
    };

    std::string configName = "Unknown_Config";
    CEntry entries[kNbEntries];
};

} // namespace OvZel
