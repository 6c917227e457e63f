#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "document/versions.h"
#include "geometry/CZELGeoReader.h"
#include "geometry/CZELGeoWriter.h"
#include "xml/CZelCancelled.h"

namespace OvZel {

namespace {

/// A strong count on an object under construction, given back without destroying it: whoever takes
/// and releases a reference in between must not delete the half-made object.
class CConstructionHold {
public:
    explicit CConstructionHold(IZelSharedPtrBase* block) : mBlock(block) { mBlock->addRef(); }
    ~CConstructionHold() { mBlock->detachRef(); }
    CConstructionHold(const CConstructionHold&) = delete;
    CConstructionHold& operator=(const CConstructionHold&) = delete;

private:
    IZelSharedPtrBase* mBlock;
};

/// Makes a manager or part and holds it.
template <class T, class... Arguments>
void make(TZelComPtr<T>& holder, Arguments&&... arguments)
{
    holder = TZelComPtr<T>(new T(std::forward<Arguments>(arguments)...));
}

constexpr std::int32_t kOldestConstructible = eVersionZelOldest;
// A client too old to make a document may still be given one and ask for its facet.
constexpr std::int32_t kOldestFacet = 5;

} // namespace

CZEL::CZEL(EVersionZEL clientVersion, IZelFeedback* feedback)
    : TZelCOMObjLinkRef(nullptr), mMgrRef(new CZelMgrRef(this, getBlock(), feedback)),
      mClientVersion(clientVersion), mFeedback(feedback)
{
    const CConstructionHold hold(getBlock());
    try {
        checkGeneration(kOldestConstructible);
        makeContents();
    } catch (...) {
        // The reference object dies with the members and must find no document.
        getBlock()->resetPtr();
        throw;
    }
}

CZEL::~CZEL()
{
    getBlock()->resetPtr();
    mHeliodons.reset();
    mCameras.reset();
    mPolygons.reset();
    mPoints.reset();
    mProperties.reset();
    mLights.reset();
    mViewObjects.reset();
    mBillboards.reset();
    mParallelViews.reset();
    mWorkingViews.reset();
    mLightsGroups.reset();
    mExternalDefinitions.reset();
    mDefinitions.reset();
    mTree.reset();
}

void CZEL::checkGeneration(std::int32_t oldest) const
{
    if (mClientVersion > eVersionZel)
        OvThrow::Signal("Client is newer than Zel Library!");
    if (mClientVersion < oldest)
        OvThrow::Signal("Client is obsolete for this Zel Library!");
}

void CZEL::makeContents()
{
    IZelObjectLink* owner = mMgrRef.getPtr();
    // The first lay-out of the tree binds the preview image and asks for definitions.
    make(mPreviewImage, mMgrRef.getPtr());
    make(mDefinitions, owner);
    makeFreshTree();
    make(mAnimations, owner);
    make(mPanoramas, owner);
    make(mImages, owner);
    make(mFileInfo, mMgrRef.getPtr());
    mRootDefinition =
        TZelStrongPtr<CZelZelObjectDefinition>(new CZelZelObjectDefinition(mMgrRef.getPtr()));
    make(mObjectInstances, owner);
    make(mShaders, owner);
    make(mScenarios, owner);
    make(m3DPaths, owner);
    make(mEnvironments, owner);
    make(mGrounds, owner);
    make(mLayers, owner);
    make(mHeliodons, owner);
    OvThrow::IfNULL(mHeliodons->append()); // a document always starts with one
    make(mCameras, owner);
    make(mPolygons, owner);
    make(mPoints, owner, 1024);
    make(mProperties, owner);
    make(mLights, owner);
    make(mViewObjects, owner);
    make(mBillboards, owner);
    make(mParallelViews, owner);
    make(mWorkingViews, owner);
    make(mLightsGroups, owner);
    mLayerInfo = TZelStrongPtr<CZelLayerInfo>(new CZelLayerInfo(owner));
    make(mExternalDefinitions, owner);
}

IZelObjectLink* CZEL::getObjectLink()
{
    return mMgrRef.getPtr();
}

IZelMgrRef* CZEL::getMgrRef() const
{
    return mMgrRef.getPtr();
}

void CZEL::setApplication(const char* name, const char* version)
{
    mApplicationName = name != nullptr ? name : "";
    mApplicationVersion = version != nullptr ? version : "";
}

IZelMgrEx* CZEL::getMgrEx(EVersionZEL clientVersion)
{
    if (clientVersion > eVersionZel)
        sendMessage("Client is newer than Zel Library!");
    else if (clientVersion < kOldestFacet)
        sendMessage("Client is obsolete for this Zel Library!");
    else
        return this;
    return nullptr;
}

bool CZEL::getFileVersion(std::int32_t* major, std::int32_t* minor) const
{
    if (major != nullptr)
        *major = mFileMajor;
    if (minor != nullptr)
        *minor = mFileMinor;
    return true;
}

IZelExtStorageWriter* CZEL::setExtStorageWriter(IZelExtStorageWriter* writer)
{
    return std::exchange(mStorageWriter, writer);
}

const CZelVersion* CZEL::getSaveVersion() const
{
    return mSaveVersion != nullptr ? mSaveVersion : &kMinVersion;
}

IZelExtStorageReader::IReader* CZEL::createGeometryReader(const CZelUUID* id, bool)
{
    if (id == nullptr || id->isNull())
        return new CZELGeoReader(blockMgrRef(), *mPoints, *mPolygons);
    CZelZelObjectDefinition& definition = definitionOf(*id);
    return new CZELGeoReader(blockMgrRef(), *definition.getPoints(), *definition.getPolygons());
}

IZelExtStorageWriter::IWriter* CZEL::createGeometryWriter(const CZelUUID* id)
{
    if (id == nullptr || id->isNull())
        return new CZELGeoWriter(blockMgrRef(), *mPoints, *mPolygons);
    if (CZelZelObjectDefinition* definition = mDefinitionIndex.find(*mDefinitions, *id))
        return new CZELGeoWriter(blockMgrRef(), *definition->getPoints(),
                                 *definition->getPolygons());
    sendMessage("CZEL::createGeometryWriter - Invalid component id");
    return nullptr;
}

CZelZelObjectDefinition& CZEL::definitionOf(const CZelUUID& id, std::int32_t newLevel)
{
    if (CZelZelObjectDefinition* found = mDefinitionIndex.find(*mDefinitions, id))
        return *found;
    CZelZelObjectDefinition* made = mDefinitions->append();
    OvThrow::IfNULL(made);
    made->setId(&id);
    made->setGeometryLevel(newLevel);
    return *made;
}

void CZEL::reportProgress(std::int32_t position, std::int32_t total)
{
    if (mFeedback != nullptr && !mFeedback->progress(this, position, total))
        throw CZelCancelled();
}

} // namespace OvZel
