#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>
#include <map>
#include <string>

namespace tool {

/// The identifier of a thing that is told from others by its kind, the thing that it belongs to (or
/// the null identifier), its name there and its number among those of one name. The same on every
/// machine and in every version of the tool, since it pairs what an export makes with what earlier
/// ones made. Never null, and never one that was drawn at random.
OvZel::CZelUUID stableId(const char* kind, const OvZel::CZelUUID& owner, const std::string& name,
                         std::uint64_t number = 0);

/// Counts things of one name from 0.
class CEqualNames {
public:
    std::uint64_t add(const std::string& name) { return mNumbers[name]++; }

private:
    std::map<std::string, std::uint64_t> mNumbers;
};

} // namespace tool
