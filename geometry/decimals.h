#pragma once

namespace OvZel {

/// The decimals of a number in a geometry block: at least one and at most six digits.
///
/// The fraction is that of the number's magnitude plus half a unit of the sixth decimal. Both write
/// behind `out` and return the end of what they wrote.

/// Cuts digits off until what is left over is no more than the rounding may have brought in. The
/// texts depend on the order of its operations, so it decides.
char* putDecimalsDigitByDigit(char* out, double fraction);

/// The same texts at once, by way of an integer.
char* putDecimals(char* out, double fraction);

} // namespace OvZel
