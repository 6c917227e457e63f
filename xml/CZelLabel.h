#pragma once

#include <cstdint>

namespace OvZel {

/// One entry of a label table: the text in the file and the number in the model.
///
/// A table is a constant array that ends with a null text. Of several labels with one number the
/// first is written and all are read. Messages show the first and the last text as the range.
struct CZelLabel {
    const char* text;
    std::int32_t value;
};

} // namespace OvZel
