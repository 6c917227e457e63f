#pragma once

#include <set>
#include <string>

namespace tool {

/// Tells names apart: the first of its kind stays as it is, a further one gets a number.
class CUniqueNames {
public:
    std::string add(const std::string& name)
    {
        std::string unique = name;
        for (int number = 2; !mNames.insert(unique).second; ++number)
            unique = name + "_" + std::to_string(number);
        return unique;
    }

private:
    std::set<std::string> mNames;
};

} // namespace tool
