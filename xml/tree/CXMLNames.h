#pragma once

#include "xml/tree/CXMLTag.h"
#include "xml/tree/shortBytes.h"

#include <zel/xml/XCXMLKey.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace OrvaneXML {

class CXMLElement;
class CXMLNodePool;
struct CXMLStore;

/// The header of a name record. The NUL-terminated text follows it.
struct SXMLName {
    CXMLStore* store;
    std::uint32_t hash;
    std::uint32_t length : 31;
    std::uint32_t isBad : 1; ///< no name that XML can hold
    // Documents repeat themselves. What was asked for behind this name the last time: an attribute
    // or whatever else comes next, and, behind that of an element, the next one of an element.
    mutable const SXMLName* follower = nullptr;
    mutable const SXMLName* nextElement = nullptr;
    /// The first child of this name in the element whose children were indexed at that time.
    mutable CXMLElement* child = nullptr;
    mutable std::uint64_t indexTime = 0;

    const char* text() const { return reinterpret_cast<const char*>(this + 1); }
    std::string_view view() const { return {text(), length}; }
    bool Is(std::string_view name) const
    {
        return length == name.size() && isSame(text(), name.data(), length);
    }
    /// With these beginnings a tag would read back as something else.
    bool isBadElement() const { return isBad || *text() == '!' || *text() == '?'; }
};

/// The names of one tree, one record each. Records never move and stay as long as the tree.
class CXMLNames {
public:
    explicit CXMLNames(CXMLStore& store) : mStore(store) {}

    const SXMLName* Intern(std::string_view name)
    {
        const SXMLName* guess = mLast ? mLast->follower : nullptr;
        if (guess && guess->Is(name))
            return mLast = guess;
        const SXMLName* found = Lookup(name);
        if (mLast)
            mLast->follower = found;
        return mLast = found;
    }
    /// The same for the names of elements as they come in a file.
    const SXMLName* InternElement(std::string_view name)
    {
        if (const SXMLName* guess = GuessElement(); guess && guess->Is(name))
            return TakeElement(guess);
        const SXMLName* found = Lookup(name);
        if (mLastElement)
            mLastElement->nextElement = found;
        return mLast = mLastElement = found;
    }
    /// The name of the element that probably comes next, or null. Who finds it right takes it
    /// instead of asking for it by its text.
    const SXMLName* GuessElement() const
    {
        return mLastElement ? mLastElement->nextElement : nullptr;
    }
    const SXMLName* TakeElement(const SXMLName* name) { return mLast = mLastElement = name; }
    const SXMLName* Take(const SXMLName* name) { return mLast = name; }
    /// The same for a name in the code, which is asked for again and again.
    const SXMLName* InternTag(CXMLTag tag)
    {
        const char* const text = tag.text();
        if (!tag.isLiteral() || AreFewAsked())
            return Intern(text ? text : "");
        SKnownTag& known = KnownTag(text);
        if (known.address != text)
            known = {text, Intern(text)};
        return known.name;
    }
    /// The same for a text that most often is a literal too, of a client.
    const SXMLName* InternText(const char* text)
    {
        if (AreFewAsked())
            return Intern(text);
        SKnownTag& known = KnownTag(text);
        if (known.address != text || std::strcmp(known.name->text(), text) != 0)
            known = {text, Intern(text)};
        return known.name;
    }
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
    struct SKnownTag {
        const char* address = nullptr;
        const SXMLName* name = nullptr;
    };
    static constexpr int kNbTagBits = 10;
    static constexpr std::uint32_t kManyAsked = 1024; // before, a small tree stays small

    bool AreFewAsked() { return !mTags && ++mNbAsked < kManyAsked; }
    SKnownTag& KnownTag(const char* tag)
    {
        if (!mTags)
            mTags = std::make_unique<std::array<SKnownTag, 1 << kNbTagBits>>();
        const std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(tag) * 0x9E3779B97F4A7C15u;
        return (*mTags)[mixed >> (64 - kNbTagBits)];
    }
    std::uint32_t HashOf(std::string_view name) const;
    std::size_t SlotOf(std::string_view name, std::uint32_t hash) const;
    const SXMLName* Add(std::string_view name, std::uint32_t hash);
    const SXMLName* Lookup(std::string_view name);
    void Grow();

    CXMLStore& mStore;
    std::vector<const SXMLName*> mTable; // open addressing, a power of two
    std::size_t mNbNames = 0;
    const SXMLName* mLast = nullptr;
    const SXMLName* mLastElement = nullptr;
    std::unique_ptr<std::array<SKnownTag, 1 << kNbTagBits>> mTags;
    std::uint32_t mNbAsked = 0;
};

} // namespace OrvaneXML
