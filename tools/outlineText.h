#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace tool {

/// The outline of a document as text for people: the counts in turn, with the elements of each list
/// that the outline has below its count. Empty texts, lists and objects are left out.
std::string outlineText(const nlohmann::ordered_json& outline);

} // namespace tool
