#include "xml/CZelLabel.h"

#include "core/OvThrow.h"

#include <cstring>

namespace OvZel {

namespace {

const char* firstLabel(const CZelLabel* table)
{
    return table->text != nullptr ? table->text : "";
}

const char* lastLabel(const CZelLabel* table)
{
    const char* last = "";
    for (; table->text != nullptr; ++table)
        last = table->text;
    return last;
}

} // namespace

const char* labelText(const CZelLabel* table, std::int32_t value)
{
    for (const CZelLabel* label = table; label->text != nullptr; ++label)
        if (label->value == value)
            return label->text;
    OvThrow::Signal("No label for the value (%d) [%s..%s]", value, firstLabel(table),
                    lastLabel(table));
}

std::int32_t labelValue(const CZelLabel* table, const char* text)
{
    for (const CZelLabel* label = table; label->text != nullptr; ++label)
        if (std::strcmp(label->text, text) == 0)
            return label->value;
    OvThrow::Signal("Invalid label (%s) [%s..%s]", text, firstLabel(table), lastLabel(table));
}

} // namespace OvZel
