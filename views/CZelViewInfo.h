#pragma once

#include "core/CZelUUIDX.h"
#include "core/TObjectMgr.h"
#include "core/TZelComPtr.h"
#include "core/TZelMember.h"
#include "environment/CAtmosphere.h"
#include "environment/CBackground.h"
#include "environment/CZelBackgroundPicture.h"
#include "environment/CZelFilters.h"
#include "environment/CZelForeground.h"
#include "environment/CZelToneSettings.h"
#include "views/CZelCameraLight.h"
#include "views/CZelClippingBox.h"
#include "views/CZelDepthOfField.h"
#include "views/CZelLaser.h"
#include "xml/TZelXMLCOMObjLink.h"

#include <zel/IZelViewInfo.h>

#include <string>

namespace OvZel {

/// How a view looks.
///
/// A client may keep one longer than its view. It is made with the owner of the view, not with the
/// view, so that it finds the document's reference object all the same.
class CZelViewInfo : public TZelXMLCOMObjLink<IZelViewInfo> {
public:
    using CIds = TObjectMgr<CZelUUIDX, CZelUUID>;

    /// The owner of the view; may be null.
    explicit CZelViewInfo(IZelObjectLinkRef* owner);

    bool getLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }
    const CBackground* getBackground() const override { return &mBackground; }
    CBackground* getBackground() override { return &mBackground; }
    const CZelForeground* getForeground() const override { return &mForeground; }
    CZelForeground* getForeground() override { return &mForeground; }
    const CIds* getLightsGroups() const override { return mLightsGroups.get(); }
    CIds* getLightsGroups() override { return mLightsGroups.get(); }
    const char* getHeliodonName() const override { return mHeliodonName.c_str(); }
    void setHeliodonName(const char* name) override { mHeliodonName = name != nullptr ? name : ""; }
    const CZelCameraLight* getCameraLight() const override { return &mCameraLight; }
    CZelCameraLight* getCameraLight() override { return &mCameraLight; }
    const CZelCameraLight* getRadiosityLight() const override { return &mRadiosityLight; }
    CZelCameraLight* getRadiosityLight() override { return &mRadiosityLight; }
    const CAtmosphere* getAtmosphere() const override { return &mAtmosphere; }
    CAtmosphere* getAtmosphere() override { return &mAtmosphere; }
    const CZelDepthOfField* getDepthOfField() const override { return &mDepthOfField; }
    CZelDepthOfField* getDepthOfField() override { return &mDepthOfField; }
    const CZelClippingBox* getClippingBox() const override { return &mClippingBox; }
    CZelClippingBox* getClippingBox() override { return &mClippingBox; }
    const CZelUUID& getEnvironment() const override { return mEnvironment; }
    void setEnvironment(const CZelUUID& id) override { mEnvironment = id; }
    const CZelFilters* getFilters() const override { return &mFilters; }
    CZelFilters* getFilters() override { return &mFilters; }
    const CIds* getNeonShaders() const override { return mNeonShaders.get(); }
    CIds* getNeonShaders() override { return mNeonShaders.get(); }
    const CZelBackgroundPicture* getBackgroundPicture() const override
    {
        return &mBackgroundPicture;
    }
    CZelBackgroundPicture* getBackgroundPicture() override { return &mBackgroundPicture; }
    const CIds* getLayers() const override { return mLayers.get(); }
    CIds* getLayers() override { return mLayers.get(); }
    const CZelToneSettings* getToneSettings() const override { return &mToneSettings; }
    CZelToneSettings* getToneSettings() override { return &mToneSettings; }
    const CZelUUID& getGround() const override { return mGround; }
    void setGround(const CZelUUID& id) override { mGround = id; }
    const CZelLaser* getLaser() const override { return &mLaser; }
    CZelLaser* getLaser() override { return &mLaser; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mLocked = false;
    TZelMember<CBackground> mBackground{this};
    TZelMember<CZelBackgroundPicture> mBackgroundPicture{this};
    TZelMember<CZelForeground> mForeground{this};
    TZelComPtr<CIds> mLightsGroups;
    std::string mHeliodonName = "Heliodon";
    TZelMember<CZelCameraLight> mCameraLight{this, CZelCameraLight::kCamera};
    TZelMember<CZelCameraLight> mRadiosityLight{this, CZelCameraLight::kRadiosity};
    TZelMember<CAtmosphere> mAtmosphere{this};
    TZelMember<CZelDepthOfField> mDepthOfField{this};
    TZelMember<CZelClippingBox> mClippingBox{this};
    CZelUUID mEnvironment;
    TZelMember<CZelFilters> mFilters{this};
    TZelComPtr<CIds> mNeonShaders;
    TZelComPtr<CIds> mLayers;
    TZelMember<CZelToneSettings> mToneSettings{this};
    CZelUUID mGround;
    TZelMember<CZelLaser> mLaser{this};
};

} // namespace OvZel
