#pragma once

#include <functional>
#include <string>

namespace ZelTest {

/// The pieces for 0 to nb - 1, one behind the other.
inline std::string pieces(int nb, const std::function<std::string(int)>& piece)
{
    std::string all;
    for (int i = 0; i < nb; ++i)
        all += piece(i);
    return all;
}

inline std::string repeated(const std::string& text, int nb)
{
    return pieces(nb, [&](int) { return text; });
}

} // namespace ZelTest
