#pragma once

#include "tests/support/CItems.h"

#include <string>
#include <vector>

namespace ZelTest {

/// Adds the table of an element to the file that the environment variable ZEL_FORMAT_TABLES names,
/// if there is one, as a line of JSON.
void saveTable(const std::string& tag, const std::vector<CRow>& rows, const CForm& form);

/// The same for a list of words that is too long for the row of an item.
void saveWords(const std::string& name, const std::vector<std::string>& words);

} // namespace ZelTest
