#pragma once

#include <string>
#include <utility>
#include <vector>

namespace OvZel {
class IZelMgr;
}

namespace example {

/// What an object is called here, and all its values as one text.
using CDescription = std::vector<std::pair<std::string, std::string>>;

/// Every layer, material, component with its mesh, instance and camera of a scene, each number
/// with all its digits.
CDescription describe(OvZel::IZelMgr& scene);

/// The name of the first object that differs, empty when there is none.
std::string firstDifference(const CDescription& a, const CDescription& b);

} // namespace example
