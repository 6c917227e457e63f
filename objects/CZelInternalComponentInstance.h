#pragma once

#include "objects/CZelObjectInstance.h"

#include <zel/IZelInternalComponentInstance.h>

namespace OvZel {

/// What an instance of an internal component has of its own.
class CZelInternalComponentInstance final : public IObjectDelegate,
                                            public TZelFrontier<IZelInternalComponentInstance> {
public:
    using CProperties = CZelObjectInstance::CProperties;

    CZelInternalComponentInstance(CZelObjectInstance& instance, CZelXMLIO& io,
                                  const CZelXMLGet& data);

    const IZelObjectInstance* getObjectInstance() const override { return &mInstance; }
    IZelObjectInstance* getObjectInstance() override { return &mInstance; }
    const CZelUUID& getComponentUUID() const override { return mComponentUUID; }
    void setComponentUUID(const CZelUUID& id) override { mComponentUUID = id; }
    const TZelObjectMgr<IZelProperty>* getProperties() const override
    {
        return mProperties.get(&mInstance);
    }
    CProperties* getProperties() override { return mProperties.get(&mInstance); }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

private:
    CZelObjectInstance& mInstance;
    CZelUUID mComponentUUID;
    TLazyMgr<CProperties> mProperties;
};

} // namespace OvZel
