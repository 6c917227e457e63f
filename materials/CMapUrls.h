#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace OvZel {

/// Addresses by the number of their kind.
class CMapUrls {
public:
    static constexpr std::int32_t kFirstKind = 1;
    static constexpr std::int32_t kLastKind = 11;
    static constexpr bool isKind(std::int32_t kind)
    {
        return kind >= kFirstKind && kind <= kLastKind;
    }

    /// Null without an entry.
    const char* get(std::int32_t kind) const
    {
        const auto place = mUrls.find(kind);
        return place != mUrls.end() ? place->second.c_str() : nullptr;
    }
    void set(std::int32_t kind, const char* url) { mUrls[kind] = url != nullptr ? url : ""; }
    void clear() { mUrls.clear(); }

private:
    std::map<std::int32_t, std::string> mUrls;
};

} // namespace OvZel
