#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/CZelPoint2D.h>
#include <zel/CZelUUID.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ZelTest {

/// A text of the length of one statement.
class CRandomText {
public:
    explicit CRandomText(std::string text) : mText(std::move(text)) {}
    operator const char*() const { return mText.c_str(); }

private:
    std::string mText;
};

/// Random values of every kind, each with its borderline cases. One seed gives the same values on
/// every machine.
class CRandomValues {
public:
    explicit CRandomValues(std::uint64_t seed) : mState(seed) {}

    std::uint64_t bits();
    bool flag() { return (bits() >> 7 & 1) != 0; }
    /// True once in so many times.
    bool once(std::uint32_t in) { return below(in) == 0; }
    std::uint32_t below(std::uint32_t limit);
    std::uint8_t byte() { return static_cast<std::uint8_t>(below(256)); }
    std::uint32_t word();
    std::int64_t word64();
    /// Any number, with the limits of the type.
    std::int32_t integer();
    std::int32_t integer(std::int32_t least, std::int32_t most);
    /// Any finite number, also huge and tiny ones.
    double number();
    /// Both limits included.
    double number(double least, double most);
    /// Some with six decimals and nine digits ahead of them, which any file keeps.
    double coordinate();
    /// A number that a float holds.
    double single() { return static_cast<double>(static_cast<float>(coordinate())); }
    OvZel::CZelColor color();
    OvZel::CZelPoint point();
    OvZel::CZelPoint2D point2D();
    /// Empty, long, in several languages, with what XML has a meaning for.
    std::string string();
    CRandomText text() { return CRandomText(string()); }
    /// A name for an element or an attribute.
    std::string name();
    CRandomText url();
    /// An identifier that was not there before.
    OvZel::CZelUUID id();
    /// One of those, a new one, or the null identifier.
    OvZel::CZelUUID reference();

private:
    std::uint64_t mState;
    std::vector<OvZel::CZelUUID> mIds;
};

} // namespace ZelTest
