#pragma once

#include <string>

namespace tool {

/// Whether two numbers differ by at most the tolerance, as a share of the scale.
bool isNear(double a, double b, double scale, double tolerance);

/// Whether two texts out of a document say the same: the same text, or as many numbers with blanks
/// between them, each near its partner on the scale of the two. Whole numbers and identifiers are
/// the same only letter for letter.
bool isSameValue(const std::string& a, const std::string& b, double tolerance);

/// The shortest text that gives the number back.
std::string numberText(double number);

} // namespace tool
