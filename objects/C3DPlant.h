#pragma once

#include "core/TObjectMgr.h"
#include "objects/CPlantSetUp.h"
#include "objects/CZelZelObjectDefinition.h"

#include <zel/IZel3DPlant.h>

namespace OvZel {

/// What a definition of a plant, or of a group of plants, has of its own.
class C3DPlant final : public TZelFrontier<IZel3DPlant>, public IObjectDelegate {
public:
    using CSetUps = TObjectMgr<CPlantSetUp, IPlantSetUp>;

    /// Without "Plant.Setups" in the data nothing is looked at.
    C3DPlant(CZelZelObjectDefinition& definition, CZelXMLIO& io, const CZelXMLGet& data);

    const IZelZelObjectDefinition* getDefinition() const override { return &mDefinition; }
    IZelZelObjectDefinition* getDefinition() override { return &mDefinition; }
    std::int32_t getPlantType() const override { return mPlantType; }
    void setPlantType(std::int32_t type) override { mPlantType = type; }
    const TZelObjectMgr<IPlantSetUp>* getPlantSetUps() const override { return mSetUps.get(); }
    CSetUps* getPlantSetUps() override { return mSetUps.get(); }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

private:
    CZelZelObjectDefinition& mDefinition;
    std::int32_t mPlantType = 0;
    TZelComPtr<CSetUps> mSetUps;
};

} // namespace OvZel
