#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// A small array of floats, empty at first, owned by the object that shows it.
class ITable : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"9078E606B8C34B20A0C70A207C26D79B"};

    /// How many values there are, 0 at first.
    virtual std::int32_t getLength() const = 0;
    /// Keeps the common part; new entries are 0. A negative length counts as 0. Throws
    /// std::bad_alloc when there is no memory.
    virtual void setLength(std::int32_t length) = 0;
    /// 0 outside the array.
    virtual float getValue(std::int32_t index) const = 0;
    /// Nothing happens outside the array.
    virtual void setValue(std::int32_t index, float value) = 0;
    /// Takes length and values; a null table empties this one. Throws as setLength does.
    virtual void copyFrom(const ITable* table) = 0;

protected:
    ~ITable() override = default;
};

} // namespace OvZel
