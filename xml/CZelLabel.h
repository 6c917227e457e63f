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

/// Raises "No label for the value (%d) [%s..%s]" for a number that the table does not have.
const char* labelText(const CZelLabel* table, std::int32_t value);
/// Raises "Invalid label (%s) [%s..%s]" for a text that the table does not have.
std::int32_t labelValue(const CZelLabel* table, const char* text);

} // namespace OvZel
