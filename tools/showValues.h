#pragma once

#include "tools/CNames.h"
#include "tools/oneLine.h"

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>
#include <zel/IZelBasic.h>
#include <zel/IZelBasicData.h>

#include <string>

namespace tool {

/// "#RRGGBB".
inline std::string colorText(const OvZel::CZelColor& color)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (int i = 1; i < 4; ++i) {
        text += kDigits[color.bytes[i] >> 4];
        text += kDigits[color.bytes[i] & 15];
    }
    return text;
}

inline nlohmann::ordered_json pointValue(const OvZel::CZelPoint& point)
{
    return {point.x, point.y, point.z};
}

/// The word at that place, or the number where it has none.
template <std::size_t count>
nlohmann::ordered_json word(const char* const (&words)[count], std::int32_t number)
{
    if (number >= 0 && static_cast<std::size_t>(number) < count)
        return words[number];
    return number;
}

inline nlohmann::ordered_json named(OvZel::IZelBasic& object)
{
    return {{"uuid", idText(*object.getBasicData()->getId())},
            {"name", object.getBasicData()->getName()}};
}

/// The names of what a list of identifiers names.
inline nlohmann::ordered_json nameList(OvZel::TZelObjectMgr<OvZel::CZelUUID>& ids,
                                       const CNames& names)
{
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    forEach(ids, [&](OvZel::CZelUUID& id, std::int32_t) { list.push_back(names.text(id)); });
    return list;
}

/// What the operation makes of each element.
template <class T, class Operation>
nlohmann::ordered_json outlines(OvZel::TZelObjectMgr<T>& list, Operation operation)
{
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    forEach(list, [&](T& element, std::int32_t) { array.push_back(operation(element)); });
    return array;
}

} // namespace tool
