#pragma once

#include "objects/CBBInstanceUrl.h"
#include "objects/CZelZelObjectInstance.h"

namespace OvZel {

/// What an instance of a billboard has of its own.
class CZelBBObjectInstance final : public CZelZelObjectInstance, public CBBInstanceUrl {
public:
    CZelBBObjectInstance(CZelObjectInstance& owner, CZelXMLIO& io, const CZelXMLGet& data);

    const IZelObjectInstance* getObjectInstance() const override { return &instance(); }
    IZelObjectInstance* getObjectInstance() override { return &instance(); }
    bool getOrientWithCamera() const override { return mOrientWithCamera; }
    void setOrientWithCamera(bool orient) override { mOrientWithCamera = orient; }
    bool getVerticalFlip() const override { return mVerticalFlip; }
    void setVerticalFlip(bool flip) override { mVerticalFlip = flip; }
    bool getHorizontalFlip() const override { return mHorizontalFlip; }
    void setHorizontalFlip(bool flip) override { mHorizontalFlip = flip; }
    std::int32_t getRenderType() const override { return mRenderType; }
    void setRenderType(std::int32_t type) override { mRenderType = type; }
    double getShininess() const override { return mShininess; }
    void setShininess(double shininess) override { mShininess = shininess; }
    double getRoughness() const override { return mRoughness; }
    void setRoughness(double roughness) override { mRoughness = roughness; }
    double getBrightness() const override { return mBrightness; }
    void setBrightness(double brightness) override { mBrightness = brightness; }
    double getContrast() const override { return mContrast; }
    void setContrast(double contrast) override { mContrast = contrast; }
    std::int32_t getKind() const override { return mKind; }
    void setKind(std::int32_t kind) override { mKind = kind; }
    double getDefinitionSize() const override { return mDefinitionSize; }
    void setDefinitionSize(double size) override { mDefinitionSize = size; }
    const char* getDefinitionName() const override { return mDefinitionName.c_str(); }
    void setDefinitionName(const char* name) override { mDefinitionName = name ? name : ""; }
    std::int32_t getCurrentConfig() const override { return mCurrentConfig; }
    void setCurrentConfig(std::int32_t config) override { mCurrentConfig = config; }
    const TZelObjectMgr<IZelProperty>* getOverloadedProperties() const override
    {
        return mOverloadedProperties.get(&instance());
    }
    CProperties* getOverloadedProperties() override
    {
        return mOverloadedProperties.get(&instance());
    }

    CClassData& privateData() const override { return instance().data(); }

    void save(CZelXMLIO& io, const CZelXMLAdd& data) override;

private:
    bool mOrientWithCamera = false;
    bool mVerticalFlip = false;
    bool mHorizontalFlip = false;
    std::int32_t mRenderType = 1;
    double mShininess = 0.5;
    double mRoughness = 700.0;
    double mBrightness = 0.0;
    double mContrast = 1.0;
    double mDefinitionSize = 100.0;
    std::string mDefinitionName;
    TLazyMgr<CProperties> mOverloadedProperties;
    std::int32_t mKind = 1;
    std::int32_t mCurrentConfig = 0;
};

} // namespace OvZel
