#pragma once

#include "objects/CBase3DPlantRef.h"
#include "objects/CZelZelObjectInstance.h"

namespace OvZel {

/// What an instance of a plant has of its own.
class C3DPlantRef final : public CBase3DPlantRef, public CZelZelObjectInstance {
public:
    C3DPlantRef(CZelObjectInstance& owner, CZelXMLIO& io, const CZelXMLGet& data)
        : CBase3DPlantRef(data), CZelZelObjectInstance(owner, io, data)
    {
    }

    const IZelObjectInstance* getObjectInstance() const override { return &instance(); }
    IZelObjectInstance* getObjectInstance() override { return &instance(); }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override
    {
        CZelZelObjectInstance::save(io, data);
        savePlant(data);
    }
};

} // namespace OvZel
