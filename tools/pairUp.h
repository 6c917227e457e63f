#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// By what an element of a list is known in another list; texts may be empty.
struct CIdentity {
    std::string kind; ///< elements of two kinds are never partners
    std::string id;
    std::string name;
};

/// Where an element stands in the first list and in the second.
struct CPartners {
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    std::size_t a = kNone;
    std::size_t b = kNone;
    bool isMoved = false; ///< against the others that are in both lists
};

/// Pairs the elements of two lists by identifier, else by name, else, where both have no name or
/// are the only one left of their kind, in their order. With areObjects the last of these rules
/// does not hold. The pairs and what only the first list has come in its order, then what only the
/// second has. As few as possible count as moved.
std::vector<CPartners> pairUp(const std::vector<CIdentity>& a, const std::vector<CIdentity>& b,
                              bool areObjects);

} // namespace tool
