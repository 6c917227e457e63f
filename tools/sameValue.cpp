#include "tools/sameValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace tool {

static constexpr std::size_t kIdLength = 32;

bool isNear(double a, double b, double scale, double tolerance)
{
    return a == b || (std::isnan(a) && std::isnan(b)) || std::abs(a - b) <= tolerance * scale;
}

// "1E000000" and so on is an identifier, not a number, if it is that long.
static bool hasFraction(const std::string& text)
{
    const bool isId = text.size() == kIdLength && text.find_first_of(". \t\n") == std::string::npos;
    return !isId && text.find_first_of(".eE") != std::string::npos;
}

// Empty unless the whole text is numbers.
static std::vector<double> numbersIn(const std::string& text)
{
    constexpr const char* kBlanks = " \t\r\n";
    std::vector<double> numbers;
    std::size_t place = text.find_first_not_of(kBlanks);
    while (place != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, place), text.size());
        double number = 0.0;
        const auto [behind, error] =
            std::from_chars(text.data() + place, text.data() + end, number);
        if (error != std::errc() || behind != text.data() + end)
            return {};
        numbers.push_back(number);
        place = text.find_first_not_of(kBlanks, end);
    }
    return numbers;
}

bool isSameValue(const std::string& a, const std::string& b, double tolerance)
{
    if (a == b)
        return true;
    if (!hasFraction(a) && !hasFraction(b))
        return false;
    const std::vector<double> first = numbersIn(a);
    const std::vector<double> second = numbersIn(b);
    return !first.empty() && std::equal(first.begin(), first.end(), second.begin(), second.end(),
                                        [&](double x, double y) {
                                            const double scale = std::max(std::abs(x), std::abs(y));
                                            return isNear(x, y, scale, tolerance);
                                        });
}

std::string numberText(double number)
{
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, number);
    return {text, result.ptr};
}

} // namespace tool
