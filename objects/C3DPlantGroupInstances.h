#pragma once

#include "objects/CBase3DPlantRef.h"
#include "objects/CZelGroupInstances.h"

namespace OvZel {

/// What a group of plants has of its own.
class C3DPlantGroupInstances final : public CBase3DPlantRef, public CZelGroupInstances {
public:
    C3DPlantGroupInstances(CZelObjectInstance& owner, const CZelXMLGet& data)
        : CBase3DPlantRef(data), CZelGroupInstances(owner)
    {
    }

    const IZelObjectInstance* getObjectInstance() const override
    {
        return CZelGroupInstances::getObjectInstance();
    }
    IZelObjectInstance* getObjectInstance() override
    {
        return CZelGroupInstances::getObjectInstance();
    }

    void save(CZelXMLIO&, const CZelXMLAdd& data) override { savePlant(data); }
};

} // namespace OvZel
