#include "geometry/decimals.h"

namespace OvZel {

char* putDecimalsDigitByDigit(char* out, double fraction)
{
    double rest = fraction;
    double tolerance = 1e-6;
    do {
        rest *= 10.0;
        tolerance *= 10.0;
        const int digit = static_cast<int>(rest);
        *out++ = static_cast<char>('0' + digit);
        rest -= digit;
    } while (rest > tolerance && tolerance < 0.9);
    return out;
}

} // namespace OvZel
