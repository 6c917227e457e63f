#pragma once

#include "core/TComObjectMgr.h"
#include "lighting/CLight.h"
#include "objects/CZelObjectInstance.h"

#include <zel/IZelZelObjectInstance.h>

namespace OvZel {

/// What an instance of an object from a file has of its own, and the base of all that are one, too.
class CZelZelObjectInstance : public IObjectDelegate, public TZelFrontier<IZelZelObjectInstance> {
public:
    using CProperties = CZelObjectInstance::CProperties;
    using CLights = TComObjectMgr<CLight, IZelLight>;

    CZelZelObjectInstance(CZelObjectInstance& instance, CZelXMLIO& io, const CZelXMLGet& data);

    const IZelObjectInstance* getObjectInstance() const override { return &mInstance; }
    IZelObjectInstance* getObjectInstance() override { return &mInstance; }
    const char* getUrl() const override { return mInstance.data().getText("Url"); }
    void setUrl(const char* url) override { mInstance.data().setText("Url", url); }
    const TZelObjectMgr<IZelProperty>* getProperties() const override
    {
        return mProperties.get(&mInstance);
    }
    CProperties* getProperties() override { return mProperties.get(&mInstance); }
    const CZelUUID& getCurrentOverload() const override { return mCurrentOverload; }
    void setCurrentOverload(const CZelUUID& id) override { mCurrentOverload = id; }
    const TZelObjectMgr<IZelLight>* getLights() const override { return mLights.get(&mInstance); }
    CLights* getLights() override { return mLights.get(&mInstance); }
    const CZelUUID& getExternalDefinitionId() const override { return mExternalDefinitionId; }
    void setExternalDefinitionId(const CZelUUID& id) override { mExternalDefinitionId = id; }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

protected:
    CZelObjectInstance& instance() const { return mInstance; }

private:
    CZelObjectInstance& mInstance;
    TLazyMgr<CLights> mLights;
    TLazyMgr<CProperties> mProperties;
    CZelUUID mCurrentOverload;
    CZelUUID mExternalDefinitionId;
};

} // namespace OvZel
