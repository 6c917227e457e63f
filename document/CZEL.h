#pragma once

#include "animation/CZel3DPath.h"
#include "animation/CZelScenario.h"
#include "core/TComObjectMgr.h"
#include "core/TObject2Mgr.h"
#include "core/TPooledMgr.h"
#include "core/TSimpleMgr.h"
#include "core/TZelCOMObjLinkRef.h"
#include "core/TZelStrongPtr.h"
#include "document/CDefinitionIndex.h"
#include "document/CZelFileInfo.h"
#include "environment/CZelEnvironment.h"
#include "environment/CZelGround.h"
#include "geometry/CPolygon.h"
#include "lighting/CHeliodon.h"
#include "lighting/CLight.h"
#include "lighting/CZelLightsGroup.h"
#include "materials/CProperty.h"
#include "objects/CZelBBMgrData.h"
#include "objects/CZelExternalDefinition.h"
#include "objects/CZelLayer.h"
#include "objects/CZelLayerInfo.h"
#include "objects/CZelObjectInstance.h"
#include "objects/CZelZelObjectDefinition.h"
#include "views/CCamera.h"
#include "views/CViewObject.h"
#include "views/CZelAnimation.h"
#include "views/CZelPanoramaV2.h"
#include "views/CZelParallelView.h"
#include "xml/CZelImage.h"
#include "xml/IBlockHost.h"
#include "xml/tree/XCXMLTree.h"

#include <zel/IZelMgr.h>

#include <memory>
#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The document: the tree of the file, every top-level list, and the road between the two.
class CZEL : public TZelCOMObjLinkRef<IZelMgr>,
             public TZelFrontier<IZelMgrEx>,
             public IZelExtStorageReader,
             public IZelExtStorageWriter,
             public IBlockHost {
public:
    using CImages = TComObjectMgr<CZelImage, IZelImage>;
    using CPolygons = CZelZelObjectDefinition::CPolygons;
    using CPoints = CZelZelObjectDefinition::CPoints;

    /// The count is 0 afterwards. Raises when the client's generation isn't supported.
    CZEL(EVersionZEL clientVersion, IZelFeedback* feedback);
    ~CZEL() override;

    IZelObjectLink* getObjectLink() override;
    IZelMgrRef* getMgrRef() const override;

    void setApplication(const char* name, const char* version) override;
    const char* getApplicationName() const override { return mApplicationName.c_str(); }
    const char* getApplicationVersion() const override { return mApplicationVersion.c_str(); }
    IZelFileInfo* getFileInfo() override { return &*mFileInfo; }
    IZelFileInfo* getFileInfo2() override { return &*mFileInfo; }
    IZelMgrEx* getMgrEx(EVersionZEL clientVersion) override;
    const CZelVersion* getLibraryVersion() const override { return &mLibraryVersion; }
    bool read(IZelReadStream* stream, IZelExtStorageReader* reader) override;
    bool write(IZelWriteStream* stream, IZelExtStorageWriter* writer) override;
    bool getFileVersion(std::int32_t* major, std::int32_t* minor) const override;
    TZelObjectMgr<IZelCamera>* getCameras() override { return &*mCameras; }
    CPolygons* getPolygons() override { return &*mPolygons; }
    CPoints* getPoints() override { return &*mPoints; }
    TZelObjectMgr<IZelProperty>* getProperties() override { return &*mProperties; }
    TZelObjectMgr<IZelLight>* getLights() override { return &*mLights; }
    TZelObjectMgr<IZelViewObject>* getViewObjects() override { return &*mViewObjects; }
    TZelObjectMgr<IZelParallelView>* getParallelViews() override { return &*mParallelViews; }
    TZelObjectMgr<IZelHeliodon>* getHeliodons() override { return &*mHeliodons; }
    TZelObjectMgr<IZelLightsGroup>* getLightsGroups() override { return &*mLightsGroups; }
    CZelImage* getPreviewImage() override { return &*mPreviewImage; }
    CImages* getImages() override { return &*mImages; }
    CZelZelObjectDefinition* getObjectDefinition() override { return mRootDefinition.getPtr(); }
    TZelObjectMgr<IZelObjectInstance>* getObjectInstances() override { return &*mObjectInstances; }
    const char* getLanguage() const override { return mMgrRef->getLanguage(); }
    void setLanguage(const char* language) override { mMgrRef->setLanguage(language); }
    const char* getComment(std::int32_t index) override;
    std::uint32_t setComment(const char* text, std::int32_t index) override;
    const char* getURL() override;
    void setURL(const char* url) override;
    OrvaneXML::XIXMLElement* getApplicationData(const char* tag) override;
    TZelObjectMgr<IZelScenario>* getScenarios() override { return &*mScenarios; }
    TZelObjectMgr<IZel3DPath>* get3DPaths() override { return &*m3DPaths; }
    TZelObjectMgr<IZelEnvironment>* getEnvironments() override { return &*mEnvironments; }
    TZelObjectMgr<IZelGround>* getGrounds() override { return &*mGrounds; }
    TZelObjectMgr<IZelLayer>* getLayers() override { return &*mLayers; }
    TZelObjectMgr<IZelLayer>* getLayers2() override { return &*mLayers; }
    IZelLayerInfo* getLayerInfo() override { return mLayerInfo.getPtr(); }
    CDefinitionMgr* getDefinitions() override { return &*mDefinitions; }
    IZelExtStorageWriter* setExtStorageWriter(IZelExtStorageWriter* writer) override;
    void readCData(IZelReadStream* stream, IZelExtStorageReader* reader) override;
    bool writeVersion(IZelWriteStream* stream, IZelExtStorageWriter* writer,
                      const CZelVersion* version) override;
    bool readMediaInfo(IZelReadStream* stream) override;
    TZelObjectMgr<IZelPanoramaV2>* getPanoramas() override { return &*mPanoramas; }
    const double* getMatrix() const override { return mMgrRef->getMatrix(); }
    void setMatrix(const double* matrix) override { mMgrRef->setMatrix(matrix); }
    TZelObjectMgr<IZelExternalDefinition>* getExternalDefinitions() override
    {
        return &*mExternalDefinitions;
    }

    TZelObjectMgr<IZelAnimation>* getAnimations() override { return &*mAnimations; }
    TZelObjectMgr<IZelBBMgrData>* getBillboards() override { return &*mBillboards; }
    bool readShader(IZelProperty* property, IZelReadStream* stream) override;
    bool writeShader(IZelProperty* property, IZelWriteStream* stream) override;
    TZelObjectMgr<IZelParallelView>* getWorkingViews() override { return &*mWorkingViews; }
    IZelProperty* newShader() override;
    void removeShader(IZelProperty* property) override;
    CZelRenderParameters* getRenderParameters() override { return &mRenderParameters; }
    const CZelVersion* getSaveVersion() const override;

    IReader* createGeometryReader(const CZelUUID* id, bool isLevelZero) override;
    IWriter* createGeometryWriter(const CZelUUID* id) override;

    IZelMgrRef& blockMgrRef() override { return *mMgrRef.getPtr(); }
    void sendMessage(const char* text) override { mMgrRef->warning(text); }
    void reportProgress(std::int32_t position, std::int32_t total) override;
    IZelExtStorageWriter* storageWriter() override { return mStorageWriter; }

    /// The definition with that identifier; if there is none it is made behind the last one, with
    /// that geometry level.
    CZelZelObjectDefinition& definitionOf(const CZelUUID& id, std::int32_t newLevel = 0);

private:
    void checkGeneration(std::int32_t oldest) const;
    void makeContents();

    // CZELTree.cpp
    void makeFreshTree();
    void layOutFixedElements();
    OrvaneXML::XIXMLElement* insertBehind(OrvaneXML::XIXMLElement* before, const char* tag);
    OrvaneXML::XIXMLElement* addSection(const char* tag);
    OrvaneXML::XIXMLElement* renewSection(const char* tag);
    void destroySections(const char* tag);
    OrvaneXML::XIXMLElement* fileNode();
    std::string applicationText() const;

    // CZELRead.cpp
    bool readDocument(IZelReadStream& stream, IZelExtStorageReader& reader);
    void installTree(std::unique_ptr<OrvaneXML::XCXMLTree> tree);
    void takeApplication(std::string text);
    void readSections(CZelXMLIO& io, const CZelXMLGet& in);
    void readDefinitions(CZelXMLIO& io, const CZelXMLGet& in);
    void readPaths(CZelXMLIO& io, const CZelXMLGet& in);
    void mendComponents();

    // CZELWrite.cpp
    bool writeDocument(IZelWriteStream& stream);
    template <class Mgr>
    void renewItems(CZelXMLIO& io, const char* tag, OrvaneXML::CXMLTag itemTag, const Mgr& list);
    void writeImages();
    void writeSections(CZelXMLIO& io);
    void writeFileInfo();
    void writeDefinitions(CZelXMLIO& io);
    void writeWorkingWindow(CZelXMLIO& io);
    void renewInstructions();
    void moveFileInfo();

    TZelStrongPtr<CZelMgrRef> mMgrRef;
    std::int32_t mFileMajor = 5;
    std::int32_t mFileMinor = 1;
    TZelComPtr<TComObjectMgr<CHeliodon, IZelHeliodon>> mHeliodons;
    TZelComPtr<TComObjectMgr<CCamera, IZelCamera>> mCameras;
    TZelComPtr<CPolygons> mPolygons;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<TObject2Mgr<CProperty, IZelProperty>> mProperties;
    TZelComPtr<TComObjectMgr<CLight, IZelLight>> mLights;
    TZelComPtr<TComObjectMgr<CViewObject, IZelViewObject>> mViewObjects;
    TZelComPtr<TObject2Mgr<CZelBBMgrData, IZelBBMgrData>> mBillboards;
    TZelComPtr<TComObjectMgr<CZelParallelView, IZelParallelView>> mParallelViews;
    TZelComPtr<TComObjectMgr<CZelParallelView, IZelParallelView>> mWorkingViews;
    TZelComPtr<TObject2Mgr<CZelLightsGroup, IZelLightsGroup>> mLightsGroups;
    TZelComPtr<TObject2Mgr<CZelAnimation, IZelAnimation>> mAnimations;
    TZelComPtr<TComObjectMgr<CZelPanoramaV2, IZelPanoramaV2>> mPanoramas;
    TZelStrongPtr<CZelZelObjectDefinition> mRootDefinition;
    TZelComPtr<TPooledMgr<CZelObjectInstance, IZelObjectInstance>> mObjectInstances;
    TZelComPtr<TObject2Mgr<CProperty, IZelProperty>> mShaders;
    TZelComPtr<TObject2Mgr<CZelScenario, IZelScenario>> mScenarios;
    TZelComPtr<TComObjectMgr<CZel3DPath, IZel3DPath>> m3DPaths;
    TZelComPtr<TObject2Mgr<CZelEnvironment, IZelEnvironment>> mEnvironments;
    TZelComPtr<TObject2Mgr<CZelGround, IZelGround>> mGrounds;
    TZelComPtr<TComObjectMgr<CZelLayer, IZelLayer>> mLayers;
    TZelComPtr<CDefinitionMgr> mDefinitions;
    TZelComPtr<TObject2Mgr<CZelExternalDefinition, IZelExternalDefinition>> mExternalDefinitions;
    CZelVersion mLibraryVersion;
    EVersionZEL mClientVersion;
    IZelFeedback* mFeedback;
    IZelExtStorageWriter* mStorageWriter = nullptr;
    std::unique_ptr<OrvaneXML::XCXMLTree> mTree;
    OrvaneXML::XIXMLElement* mFileNode = nullptr;
    OrvaneXML::XIXMLInstruction* mApplicationInstruction = nullptr;
    OrvaneXML::XIXMLInstruction* mFormatInstruction = nullptr;
    std::string mApplicationName;
    std::string mApplicationVersion;
    TZelComPtr<CZelImage> mPreviewImage;
    TZelComPtr<CImages> mImages;
    TZelComPtr<CZelFileInfo> mFileInfo;
    TZelStrongPtr<CZelLayerInfo> mLayerInfo;
    CZelRenderParameters mRenderParameters;
    const CZelVersion* mSaveVersion = nullptr;
    CDefinitionIndex mDefinitionIndex;
};

} // namespace OvZel
