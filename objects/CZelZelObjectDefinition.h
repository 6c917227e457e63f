#pragma once

#include "core/TObject2Mgr.h"
#include "core/TSimpleMgr.h"
#include "geometry/CPolygon.h"
#include "materials/CProperty.h"
#include "objects/CClassData.h"
#include "objects/CDefinitionName.h"
#include "objects/CObjectSetup.h"
#include "objects/IObjectDelegate.h"
#include "objects/placementLabels.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/CZelPoint.h>

#include <array>
#include <memory>
#include <string>

namespace OvZel {

/// A definition: the fields that every class has, the class data and the delegate of the class.
class CZelZelObjectDefinition
    : public TZelXMLCOMObjLinkRef<IZelZelObjectDefinition, CDefinitionName, CDefinitionBasicData> {
public:
    using IDelegate = IObjectDelegate;
    using CPoints = TSimpleMgr<CZelPoint>;
    using CPolygons = TObject2Mgr<CPolygon, IZelPolygon>;
    using CProperties = TObject2Mgr<CProperty, IZelProperty>;
    using CSetups = TObject2Mgr<CObjectSetup, IZelZelObjectSetup>;
    using XIXMLElement = OrvaneXML::XIXMLElement;

    explicit CZelZelObjectDefinition(IZelObjectLinkRef* owner);
    /// The delegate goes first.
    ~CZelZelObjectDefinition() override = default;

    const char* getClass() const override { return mClass.c_str(); }
    void setClass(const char* text) override;
    const CZelPoint& getAnchor() const override { return mAnchor; }
    void setAnchor(const CZelPoint& point) override { mAnchor = point; }
    std::int32_t getPlacement() const override { return mPlacement; }
    void setPlacement(std::int32_t placement) override { mPlacement = placement; }
    const CZelPoint& getUp() const override { return mUp; }
    void setUp(const CZelPoint& vector) override { mUp = vector; }
    double getInitialAngle() const override { return mInitialAngle; }
    void setInitialAngle(double angle) override { mInitialAngle = angle; }
    const CZelPoint& getModelRotation() const override { return mModelRotation; }
    void setModelRotation(const CZelPoint& angles) override { mModelRotation = angles; }
    const double* getModelRotationMatrix() const override { return mModelRotationMatrix.data(); }
    void setModelRotationMatrix(const double* matrix) override;
    const CZelPoint& getModelPosition() const override { return mModelPosition; }
    void setModelPosition(const CZelPoint& point) override { mModelPosition = point; }
    std::int32_t getModelOrigin() const override { return mModelOrigin; }
    void setModelOrigin(std::int32_t origin) override { mModelOrigin = origin; }
    void prepareForWrite() override;
    XIXMLElement* getObjectData() override { return mData.element(); }
    const XIXMLElement* getObjectData() const override { return mData.element(); }
    XIXMLElement* getInstanceData() override;
    const XIXMLElement* getInstanceData() const override;
    const TZelObjectMgr<IZelProperty>* getProperties() const override { return mProperties.get(); }
    CProperties* getProperties() override { return mProperties.get(); }
    const TZelObjectMgr<CZelPoint>* getPoints() const override { return mPoints.get(); }
    CPoints* getPoints() override { return mPoints.get(); }
    const TZelObjectMgr<IZelPolygon>* getPolygons() const override { return mPolygons.get(); }
    CPolygons* getPolygons() override { return mPolygons.get(); }
    const IZelString* getDescription1() const override { return &mDescription1; }
    IZelString* getDescription1() override { return &mDescription1; }
    const IZelString* getDescription2() const override { return &mDescription2; }
    IZelString* getDescription2() override { return &mDescription2; }
    const IZelString* getComment() const override { return &mComment; }
    IZelString* getComment() override { return &mComment; }
    const CZelUUID& getLightGroupID() const override { return mLightGroupId; }
    void setLightGroupID(const CZelUUID& id) override { mLightGroupId = id; }
    const TZelObjectMgr<IZelZelObjectSetup>* getSetups() const override { return mSetups.get(); }
    CSetups* getSetups() override { return mSetups.get(); }
    const IZel3DPlant* as3DPlant() const override;
    IZel3DPlant* as3DPlant() override;
    const IZelObjectLight* asObjectLight() const override;
    IZelObjectLight* asObjectLight() override;
    const IZelAnimatedObject* asAnimatedObject() const override;
    IZelAnimatedObject* asAnimatedObject() override;
    std::int32_t getGeometryLevel() const override { return mGeometryLevel; }
    void setGeometryLevel(std::int32_t level) override { mGeometryLevel = level; }

    IZelString& definitionName() const override { return *mNameLink; }
    /// The private data, for the delegates.
    CClassData& data() { return mData; }

    /// For the class "ModelObject" the wrapper with the mesh, for any other the definition alone.
    XIXMLElement* addXML(CZelXMLIO& io, XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, XIXMLElement* element) override;
    /// Replaces the "Object.Definition" of an element.
    XIXMLElement* addDefinition(CZelXMLIO& io, XIXMLElement* parent);
    /// Reads the "Object.Definition" of an element; without it, or without a class in it, nothing
    /// changes.
    void getDefinition(CZelXMLIO& io, XIXMLElement* parent);
    /// The content of "Object.Definition", which is none for the empty class.
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out);
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    void changeClass(IZelMgrRef* mgrRef, std::string text, const CZelXMLGet& data);
    void saveDelegate(CZelXMLIO& io);
    XIXMLElement* addWrapper(CZelXMLIO& io, XIXMLElement* element);

    IZelString* mNameLink;
    CClassData mData{"Object.Data"};
    std::string mClass{"ModelObject"};
    CZelPoint mAnchor;
    CZelPoint mUp{0.0, 0.0, 1.0};
    TZelComPtr<CProperties> mProperties;
    TZelComPtr<CPolygons> mPolygons;
    TZelComPtr<CPoints> mPoints;
    std::int32_t mPlacement = kVertical;
    double mInitialAngle = 0.0;
    CZelUUID mLightGroupId;
    CZelPoint mModelRotation;
    CZelPoint mModelPosition;
    std::int32_t mModelOrigin = 0;
    CZelString mDescription1;
    CZelString mDescription2;
    CZelString mComment;
    std::array<double, 16> mModelRotationMatrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    TZelComPtr<CSetups> mSetups;
    std::int32_t mGeometryLevel = 0;
    std::unique_ptr<IDelegate> mDelegate;
};

} // namespace OvZel
