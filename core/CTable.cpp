#include "core/CTable.h"

#include <algorithm>

namespace OvZel {

void CTable::setLength(std::int32_t length)
{
    mValues.resize(static_cast<std::size_t>(std::max(length, 0)), 0.0F);
}

float CTable::getValue(std::int32_t index) const
{
    return isIndex(index) ? mValues[static_cast<std::size_t>(index)] : 0.0F;
}

void CTable::setValue(std::int32_t index, float value)
{
    if (isIndex(index))
        mValues[static_cast<std::size_t>(index)] = value;
}

void CTable::copyFrom(const ITable* table)
{
    if (table == this)
        return;
    setLength(table != nullptr ? table->getLength() : 0);
    for (std::int32_t i = 0; i < getLength(); ++i)
        setValue(i, table->getValue(i));
}

} // namespace OvZel
