#pragma once

#include <cstddef>
#include <string>

namespace OrvaneXML {

/// The name of an element or attribute in the code. Nearly all are literals, which stay as they are
/// where they are, so that a tree knows one again by its address alone. An array that changes must
/// not be handed over as one; it can be a std::string.
class CXMLTag {
public:
    template <std::size_t kSize>
    consteval CXMLTag(const char (&literal)[kSize]) : mText(literal), mIsLiteral(true)
    {
    }
    /// No name, which no element has; a failure that would quote it does not.
    constexpr CXMLTag(std::nullptr_t) : mText(nullptr), mIsLiteral(false) {}
    /// For a name that is put together; good as long as that text.
    CXMLTag(const std::string& made) : mText(made.c_str()), mIsLiteral(false) {}

    /// Null for no name.
    const char* text() const { return mText; }
    bool isLiteral() const { return mIsLiteral; }

private:
    const char* mText;
    bool mIsLiteral;
};

} // namespace OrvaneXML
