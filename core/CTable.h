#pragma once

#include "core/COwnerLink.h"
#include "core/CZelEmptyBasicData.h"
#include "core/CZelMgrRef.h"
#include "core/TZelCOMBase.h"

#include <zel/ITable.h>

#include <vector>

namespace OvZel {

/// A small array of floats. Its basic data answers with warnings alone.
class CTable : public TZelCOMBase<ITable, &ITable::sIID>, public CZelEmptyBasicData {
public:
    /// The owner may be null.
    explicit CTable(IZelObjectLink* owner) : mOwner(owner) {}

    IZelBasicData* getBasicData() override { return this; }
    IZelObjectLink* getOwnerLink() const override { return mOwner.get(); }
    IZelMgrRef* getMgrRef() const override { return mOwner.getMgrRef(); }
    CZelMgrRef* getWarningTarget() const override { return CZelMgrRef::from(getMgrRef()); }

    std::int32_t getLength() const override { return static_cast<std::int32_t>(mValues.size()); }
    void setLength(std::int32_t length) override;
    float getValue(std::int32_t index) const override;
    void setValue(std::int32_t index, float value) override;
    void copyFrom(const ITable* table) override;

private:
    bool isIndex(std::int32_t index) const { return index >= 0 && index < getLength(); }

    COwnerLink mOwner;
    std::vector<float> mValues;
};

} // namespace OvZel
