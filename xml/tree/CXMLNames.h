#pragma once

#include <zel/xml/XCXMLKey.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace OrvaneXML {

class CXMLNodePool;
struct CXMLStore;

/// The header of a name record. The NUL-terminated text follows it.
struct SXMLName {
    CXMLStore* store;
    std::uint32_t hash;
    std::uint32_t length : 31;
    std::uint32_t isBad : 1; ///< no name that XML can hold

    const char* text() const { return reinterpret_cast<const char*>(this + 1); }
    std::string_view view() const { return {text(), length}; }
    /// With these beginnings a tag would read back as something else.
    bool isBadElement() const { return isBad || *text() == '!' || *text() == '?'; }
};

/// The names of one tree, one record each. Records never move and stay as long as the tree.
class CXMLNames {
public:
    explicit CXMLNames(CXMLStore& store) : mStore(store) {}

    const SXMLName* Intern(std::string_view name);
    /// The record of a key's name in this tree, made if there is none.
    const SXMLName* Resolve(XCXMLKey key);
    /// The same, or null if this tree has no such name.
    const SXMLName* Find(XCXMLKey key) const;

    static XCXMLKey KeyOf(const SXMLName* name) { return XCXMLKey(name->text()); }
    static const SXMLName* RecordOf(XCXMLKey key)
    {
        return reinterpret_cast<const SXMLName*>(key.mText) - 1;
    }

private:
    std::uint32_t HashOf(std::string_view name) const;
    std::size_t SlotOf(std::string_view name, std::uint32_t hash) const;
    const SXMLName* Add(std::string_view name, std::uint32_t hash);
    void Grow();

    CXMLStore& mStore;
    std::vector<const SXMLName*> mTable; // open addressing, a power of two
    std::size_t mNbNames = 0;
};

} // namespace OrvaneXML
