#include "tools/stableId.h"

#include "tools/stableHash.h"

namespace tool {

using OvZel::CZelUUID;

static void putBytes(std::uint8_t* bytes, std::uint64_t number)
{
    for (int shift = 56; shift >= 0; shift -= 8)
        *bytes++ = static_cast<std::uint8_t>(number >> shift);
}

CZelUUID stableId(const char* kind, const CZelUUID& owner, const std::string& name,
                  std::uint64_t number)
{
    char ownerText[33];
    owner.toText(ownerText);
    // The name ends the text, so that nothing in it can be taken for one of the others.
    const std::string text =
        std::string(kind) + '\n' + ownerText + '\n' + std::to_string(number) + '\n' + name;
    CZelUUID id;
    putBytes(id.bytes, stableHash(text, 1));
    putBytes(id.bytes + 8, stableHash(text, 2));
    // The version of identifiers that follow a rule of one's own; random ones have another.
    id.bytes[6] = static_cast<std::uint8_t>(0x80 | (id.bytes[6] & 0x0F));
    id.bytes[8] = static_cast<std::uint8_t>(0x80 | (id.bytes[8] & 0x3F));
    return id;
}

} // namespace tool
