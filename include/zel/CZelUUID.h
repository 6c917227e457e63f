#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace OvZel {

/// A 16-byte identifier of an object, an interface or an element type.
///
/// A plain value without inner structure: compare it by value, never by address. The text form is
/// 32 hexadecimal digits without separators, bytes in storage order, high nibble first.
struct CZelUUID {
    std::uint8_t bytes[16] = {}; ///< in storage order

    /// The null identifier, all bytes zero.
    constexpr CZelUUID() = default;

    /// Reads 32 digits of either case; what stands behind them is not looked at.
    /// Raises std::runtime_error "CZelUUID::Hex2Int: Invalid hex value" on the first bad character,
    /// the end of a short text included.
    constexpr explicit CZelUUID(const char* text)
    {
        for (std::size_t i = 0; i < 16; ++i) {
            const unsigned high = Hex2Int(text[2 * i]);
            bytes[i] = static_cast<std::uint8_t>(high << 4 | Hex2Int(text[2 * i + 1]));
        }
    }

    /// The value of one hexadecimal digit, 0 to 15; raises like the constructor.
    static constexpr unsigned Hex2Int(char digit)
    {
        if (digit >= '0' && digit <= '9')
            return static_cast<unsigned>(digit - '0');
        if (digit >= 'A' && digit <= 'F')
            return static_cast<unsigned>(digit - 'A') + 10;
        if (digit >= 'a' && digit <= 'f')
            return static_cast<unsigned>(digit - 'a') + 10;
        throw std::runtime_error("CZelUUID::Hex2Int: Invalid hex value");
    }

    /// Writes 32 upper-case digits and a NUL; the buffer holds at least 33 characters.
    constexpr void toText(char* buffer) const
    {
        constexpr char kDigits[] = "0123456789ABCDEF";
        for (std::size_t i = 0; i < 16; ++i) {
            buffer[2 * i] = kDigits[bytes[i] >> 4];
            buffer[2 * i + 1] = kDigits[bytes[i] & 15];
        }
        buffer[32] = '\0';
    }

    /// Whether all bytes are zero.
    constexpr bool isNull() const
    {
        for (const std::uint8_t byte : bytes)
            if (byte != 0)
                return false;
        return true;
    }

    /// Negative, zero or positive by the first byte that differs.
    constexpr int compare(const CZelUUID& other) const
    {
        for (std::size_t i = 0; i < 16; ++i)
            if (bytes[i] != other.bytes[i])
                return bytes[i] < other.bytes[i] ? -1 : 1;
        return 0;
    }
};

/// By value, as CZelUUID::compare tells.
constexpr bool operator==(const CZelUUID& a, const CZelUUID& b)
{
    return a.compare(b) == 0;
}
constexpr bool operator!=(const CZelUUID& a, const CZelUUID& b)
{
    return a.compare(b) != 0;
}
constexpr bool operator<(const CZelUUID& a, const CZelUUID& b)
{
    return a.compare(b) < 0;
}

static_assert(sizeof(CZelUUID) == 16, "the identifier crosses the boundary as 16 bytes");

} // namespace OvZel
