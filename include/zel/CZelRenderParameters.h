#pragma once

#include <cstdint>
#include <string>

namespace OvZel {

/// A free table of values that a render configuration keeps with the document.
///
/// The library interprets none of it. The record belongs to the document and is changed in place;
/// client and library share the layout of std::string.
struct CZelRenderParameters {
    /// How many entries there are, used or not.
    static constexpr int kNbEntries = 12;

    /// One row of the table.
    struct CEntry {
        double value = 0.0;     ///< any number; the limits beside it bind nobody
        double minimum = 0.0;   ///< for the user interface
        double maximum = 100.0; ///< for the user interface
        bool flag = false;      ///< free
        std::string text;       ///< free
        /// Byte 0 is unused and 0; red, green and blue are bytes 1, 2 and 3.
        std::uint8_t color[4] = {};
    };

    /// Name of the configuration that the entries belong to.
    std::string configName = "Unknown_Config";
    /// The rows; their order is the client's.
    CEntry entries[kNbEntries];
};

} // namespace OvZel
