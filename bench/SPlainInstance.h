#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ZelBench {

/// An instance as a plain program keeps it: the texts, and every number in one row.
struct SPlainInstance {
    std::string name, type, id, attachId, layerId, overloadId, component;
    std::vector<double> numbers;
    bool isVisible = false;
};

/// Reads the instances of a file by a parser that makes a tree of all of it, and writes them so.
std::vector<SPlainInstance> readInstances(const std::string& path);
void writeInstances(const std::vector<SPlainInstance>& instances, const std::string& path);

} // namespace ZelBench
