#pragma once

#include "core/CObjectPool.h"
#include "core/TObject2Mgr.h"
#include "materials/CProperty.h"
#include "objects/CClassData.h"
#include "objects/IObjectDelegate.h"
#include "objects/TLazyMgr.h"
#include "objects/placementLabels.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelObjectInstance.h>

#include <memory>
#include <string>

namespace OvZel {

/// An instance: the fields that every class has, the private data and the delegate of the class.
class CZelObjectInstance : public TZelXMLCOMObjLinkRef<IZelObjectInstance>, public CPooled {
public:
    using CProperties = TObject2Mgr<CProperty, IZelProperty>;
    using XIXMLElement = OrvaneXML::XIXMLElement;

    using IDelegate = IObjectDelegate;

    /// The limits of the transparency.
    static constexpr CRange kTransparency{0.0, 1.0};

    /// The owner may be null.
    explicit CZelObjectInstance(IZelObjectLinkRef* owner);
    ~CZelObjectInstance() override { mDelegate.reset(); }

    const char* getClass() const override { return mClass.c_str(); }
    void setClass(const char* text) override;
    const CZelUUID& getAttachId() const override { return mAttachId; }
    void setAttachId(const CZelUUID& id) override { mAttachId = id; }
    void setTranslation(const CZelPoint& translation) override { mTranslation = translation; }
    const CZelPoint& getTranslation() const override { return mTranslation; }
    void setRotation(const CZelPoint& rotation) override { mRotation = rotation; }
    const CZelPoint& getRotation() const override { return mRotation; }
    void setScale(const CZelPoint& scale) override { mScale = scale; }
    const CZelPoint& getScale() const override { return mScale; }
    std::int32_t getTriangleId() const override { return mTriangleId; }
    void setTriangleId(std::int32_t id) override { mTriangleId = id; }
    const CZelPoint& getNormal() const override { return mNormal; }
    void setNormal(const CZelPoint& normal) override { mNormal = normal; }
    const CZelPoint& getAnchorPosition() const override { return mAnchorPosition; }
    void setAnchorPosition(const CZelPoint& position) override { mAnchorPosition = position; }
    const CZelPoint& getUpVector() const override { return mUpVector; }
    void setUpVector(const CZelPoint& up) override { mUpVector = up; }
    std::int32_t getPlacementProperty() const override { return mPlacementProperty; }
    void setPlacementProperty(std::int32_t placement) override { mPlacementProperty = placement; }
    double getInitialAngle() const override { return mInitialAngle; }
    void setInitialAngle(double angle) override { mInitialAngle = angle; }
    const CZelBox& getBoundingBox() const override { return mBoundingBox; }
    void setBoundingBox(const CZelBox& box) override { mBoundingBox = box; }
    bool getCoordinatesLocked() const override { return mCoordinatesLocked; }
    void setCoordinatesLocked(bool locked) override { mCoordinatesLocked = locked; }
    bool getScaleLocked() const override { return mScaleLocked; }
    void setScaleLocked(bool locked) override { mScaleLocked = locked; }
    void prepareForWrite() override;
    XIXMLElement* getInstanceData() override { return mData.element(); }
    const XIXMLElement* getInstanceData() const override { return mData.element(); }
    const IZelZelObjectInstance* asZelObjectInstance() const override;
    IZelZelObjectInstance* asZelObjectInstance() override;
    const IZel3DPlantRef* as3DPlantRef() const override;
    IZel3DPlantRef* as3DPlantRef() override;
    const IZelBBObjectInstance* asBBObjectInstance() const override;
    IZelBBObjectInstance* asBBObjectInstance() override;
    const IZelObjectLightRef* asObjectLightRef() const override;
    IZelObjectLightRef* asObjectLightRef() override;
    const IZelAnimatedObjectInstance* asAnimatedObjectInstance() const override;
    IZelAnimatedObjectInstance* asAnimatedObjectInstance() override;
    const IZelInternalComponentInstance* asInternalComponentInstance() const override;
    IZelInternalComponentInstance* asInternalComponentInstance() override;
    std::int32_t getAnimationBehavior() const override { return mAnimationBehavior; }
    void setAnimationBehavior(std::int32_t behavior) override { mAnimationBehavior = behavior; }
    const CZelPoint& getCurrentPathDirection() const override { return mCurrentPathDirection; }
    void setCurrentPathDirection(const CZelPoint& direction) override
    {
        mCurrentPathDirection = direction;
    }
    bool getTarget() const override { return mTarget; }
    void setTarget(bool target) override { mTarget = target; }
    double getTransparency() const override { return mTransparency; }
    void setTransparency(double transparency) override
    {
        mTransparency = kTransparency.clip(transparency);
    }
    const CZelUUID& getLayerId() const override { return mLayerId; }
    void setLayerId(const CZelUUID& id) override { mLayerId = id; }
    bool getMaterialsDifferents() const override { return mMaterialsDifferents; }
    void setMaterialsDifferents(bool differ) override { mMaterialsDifferents = differ; }
    const CZelUUID& getOverloadId() const override { return mOverloadId; }
    void setOverloadId(const CZelUUID& id) override { mOverloadId = id; }
    const IZelGroupInstances* asGroupInstances() const override;
    IZelGroupInstances* asGroupInstances() override;
    bool getVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    bool getOptimised() const override { return mOptimised; }
    void setOptimised(bool optimised) override { mOptimised = optimised; }
    bool getSubInstance() const override { return mSubInstance; }
    void setSubInstance(bool subInstance) override { mSubInstance = subInstance; }
    const TZelObjectMgr<IZelProperty>* getProperties() const override
    {
        return mProperties.get(link());
    }
    CProperties* getProperties() override { return mProperties.get(link()); }

    /// The private data, for the delegates.
    CClassData& data() { return mData; }

    XIXMLElement* addXML(CZelXMLIO& io, XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, XIXMLElement* element) override;
    /// The delegate saves its state first.
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out);
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    /// The owner of what the instance holds; a constant instance hands it on for reading.
    IZelObjectLink* link() const { return const_cast<CZelObjectInstance*>(this); }
    void changeClass(IZelMgrRef* mgrRef, std::string text, const CZelXMLGet& data);
    void saveDelegate(CZelXMLIO& io);
    void getLaterItems(CZelXMLIO& io, const CZelXMLGet& in);

    std::string mClass;
    CZelUUID mAttachId;
    CZelPoint mTranslation;
    CZelPoint mRotation;
    CZelPoint mScale{1.0, 1.0, 1.0};
    CClassData mData{"Instance.Data"};
    std::unique_ptr<IDelegate> mDelegate;
    CZelPoint mNormal{0.0, 0.0, 1.0};
    CZelPoint mAnchorPosition;
    CZelPoint mUpVector{0.0, 0.0, 1.0};
    std::int32_t mTriangleId = -1;
    std::int32_t mPlacementProperty = kVertical;
    double mInitialAngle = 0.0;
    CZelBox mBoundingBox{{-1.0, -1.0, -1.0}, {1.0, 1.0, 1.0}};
    CZelPoint mCurrentPathDirection;
    double mTransparency = 0.0;
    CZelUUID mLayerId;
    CZelUUID mOverloadId;
    TLazyMgr<CProperties> mProperties;
    std::int32_t mAnimationBehavior = 0;
    bool mCoordinatesLocked = false;
    bool mScaleLocked = false;
    bool mTarget = false;
    bool mMaterialsDifferents = false;
    bool mVisible = true;
    bool mOptimised = false;
    bool mSubInstance = false;
};

} // namespace OvZel
