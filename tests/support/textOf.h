#pragma once

#include <zel/CZelUUID.h>

#include <string>

namespace ZelTest {

/// The 32 digits of an identifier.
inline std::string textOf(const OvZel::CZelUUID& id)
{
    char text[33];
    id.toText(text);
    return text;
}

} // namespace ZelTest
