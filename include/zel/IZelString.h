#pragma once

#include <cstdint>

namespace OvZel {

/// A text in several languages, an ordered list of pairs of a language key and a text.
///
/// The key of a two-letter language is its first letter times 256 plus its second: 0x656E for "en".
/// Returned texts are good until the next change of the object.
class IZelString {
public:
    /// Clears, then copies every pair in order. A null source empties the text.
    virtual void copyFrom(const IZelString* source) = 0;
    /// Null when the language is absent.
    virtual const char* getText(std::uint32_t language) const = 0;
    /// The text in the document's language ("en" without a document), failing that the first text,
    /// failing that the empty text.
    virtual const char* getCurrentText() const = 0;
    /// Replaces or appends; a null text removes the language.
    virtual void setText(std::uint32_t language, const char* text) = 0;
    /// As setText, in the language that getCurrentText asks for first.
    virtual void setCurrentText(const char* text) = 0;
    /// How many languages there are.
    virtual std::uint32_t getNbTexts() const = 0;
    /// 0 when the index is out of range.
    virtual std::uint32_t getLanguageKey(std::uint32_t index) const = 0;
    /// Removes every language.
    virtual void clear() = 0;

protected:
    ~IZelString() = default;
};

} // namespace OvZel
