#pragma once

#include <cstring>

namespace OrvaneXML {

class CXMLNames;

/// The name of an element or attribute, interned in a tree.
///
/// Keys come from XIXMLElement::MakeKey and GetKey and live as long as the tree that made them.
/// One name of one tree has one record, so that comparing two keys of a tree compares two pointers.
/// A key of another tree that is still alive works everywhere and is looked up by its text.
/// A default-constructed key is no name; as text it is null.
class XCXMLKey {
public:
    constexpr XCXMLKey() = default;

    /// The NUL-terminated name, owned by the tree.
    constexpr operator const char*() const { return mText; }

    /// By the text; two keys that are no name are equal.
    bool operator==(const char* text) const { return isSame(mText, text); }
    bool operator!=(const char* text) const { return !isSame(mText, text); }
    bool operator==(const XCXMLKey& other) const { return isSame(mText, other.mText); }
    bool operator!=(const XCXMLKey& other) const { return !isSame(mText, other.mText); }

private:
    friend class CXMLNames;

    constexpr explicit XCXMLKey(const char* text) : mText(text) {}

    static bool isSame(const char* a, const char* b)
    {
        return a == b || (a && b && std::strcmp(a, b) == 0);
    }

    const char* mText = nullptr; // behind the record's header
};

} // namespace OrvaneXML
