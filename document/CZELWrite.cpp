#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "core/warnJoined.h"
#include "document/CZELXMLWriteStream.h"
#include "document/versions.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "render/renderParametersXML.h"
#include "xml/CImageProvider.h"
#include "xml/CZelCancelled.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/listXML.h"

using OrvaneXML::XIXMLData;
using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

std::string toText(const CZelVersion& version)
{
    return std::to_string(version.major) + '.' + std::to_string(version.minor) + '.' +
           std::to_string(version.patch);
}

/// Puts a value back at the end of a scope.
template <class T>
class CRestore {
public:
    CRestore(T& place, T value) : mPlace(place), mOld(std::exchange(place, value)) {}
    ~CRestore() { mPlace = mOld; }
    CRestore(const CRestore&) = delete;
    CRestore& operator=(const CRestore&) = delete;

private:
    T& mPlace;
    T mOld;
};

} // namespace

bool CZEL::write(IZelWriteStream* stream, IZelExtStorageWriter* writer)
{
    return writeVersion(stream, writer, nullptr);
}

bool CZEL::writeVersion(IZelWriteStream* stream, IZelExtStorageWriter* writer,
                        const CZelVersion* version)
{
    IZelExtStorageWriter* own = mStorageWriter != nullptr ? mStorageWriter : this;
    const CRestore<IZelExtStorageWriter*> storage(mStorageWriter, writer != nullptr ? writer : own);
    const CRestore<const CZelVersion*> saved(mSaveVersion, version);
    const auto tell = [this](const char* text) {
        warnJoined(*mMgrRef.getPtr(), {"Error \"", text, "\" while writting"}, text); // (sic)
    };
    try {
        OvThrow::IfNULL(stream);
        return writeDocument(*stream);
    } catch (const CZelCancelled&) {
        // The section that was cancelled has told it.
    } catch (const std::exception& exception) {
        tell(exceptionText(exception));
    } catch (...) {
        sendMessage("Unknownm exception while writting"); // (sic)
    }
    return false;
}

bool CZEL::writeDocument(IZelWriteStream& stream)
{
    mDefinitionIndex.reset();
    layOutFixedElements();
    writeImages();
    destroySections("Application.Data");
    CZelXMLIO io(mMgrRef.getPtr(), false);
    writeSections(io);
    renewInstructions();
    moveFileInfo();
    CZELXMLWriteStream target(&stream);
    return mTree->Write(&target);
}

void CZEL::writeImages()
{
    XIXMLElement* file = fileNode();
    destroySections("Images");
    XIXMLElement* images =
        insertBehind(file->FindElement(file->MakeKey("Preview.Image")), "Images");
    const CZelXMLAdd out(images);
    for (std::int32_t i = 0; i < mImages->size(); ++i) {
        CZelImage* image = mImages->at(i);
        XIXMLElement* item = out.AddElement("Image");
        CZelXMLAdd(item).AddUUID("UUID", *image->getId());
        item->SetCData(new CImageProvider(this, image));
    }
}

/// The old items go one by one, so that each new one finds memory that is still in the cache. After
/// a failure one old section may stay, which the next save takes away.
template <class Mgr>
void CZEL::renewItems(CZelXMLIO& io, const char* tag, OrvaneXML::CXMLTag itemTag, const Mgr& list)
{
    XIXMLElement* section = addSection(tag);
    XIXMLElement* old = section->GetNextSame();
    if (old != nullptr)
        CZelXMLAdd::DestroySame(old->GetNextSame());
    const CZelXMLAdd out(section);
    for (std::int32_t i = 0; i < list.size(); ++i) {
        list.at(i)->addTo(io, CZelXMLAdd(out.AddElement(itemTag)));
        if (OrvaneXML::XIXMLData* gone = old != nullptr ? old->GetFirstNode() : nullptr)
            gone->Destroy();
    }
    CZelXMLAdd::DestroySame(old);
}

void CZEL::writeSections(CZelXMLIO& io)
{
    for (const char* legacy :
         {"Heliodon", "Image", "Preview", "Ambient", "Atmosphere", "Background", "Panoramas"})
        destroySections(legacy);
    writeFileInfo();
    writeDefinitions(io);
    renewItems(io, "Heliodons", "Heliodon", *mHeliodons);
    renewItems(io, "Properties", "Property", *mProperties);
    renewItems(io, "Billboards", "Billboard", *mBillboards);
    renewItems(io, "Lights", "Light", *mLights);
    renewItems(io, "Lights.Groups", "Lights.Group", *mLightsGroups);
    renewItems(io, "Perspective.Views", "Perspective.View", *mCameras);
    renewItems(io, "Parallel.Views", "Parallel.View", *mParallelViews);
    renewItems(io, "PanoramasV2", "PanoramaV2", *mPanoramas);
    renewItems(io, "Animations", "Animation", *mAnimations);
    renewItems(io, "View.Objects", "View.Object", *mViewObjects);
    mRootDefinition->addTo(io, CZelXMLAdd(renewSection("Object.Definition")));
    renewItems(io, "Object.Instances", "Object.Instance", *mObjectInstances);
    renewItems(io, "Scenarios", "Scenario", *mScenarios);
    renewItems(io, "Paths.3D", "Path.3D", *m3DPaths);
    renewItems(io, "Grounds", "Ground", *mGrounds);
    renewItems(io, "Layers", "Layer", *mLayers);
    mLayerInfo->addTo(io, CZelXMLAdd(renewSection("Layers.Info")));
    addRenderParameters(mRenderParameters, CZelXMLAdd(renewSection("Tmp.Render.Parameters")));
    destroySections("Current.Id");
    renewItems(io, "ExternalDefinitions", "External.Definition", *mExternalDefinitions);
    writeWorkingWindow(io);
}

void CZEL::writeFileInfo()
{
    XIXMLElement* file = fileNode();
    const OrvaneXML::XCXMLKey key = file->MakeKey("File.Info");
    XIXMLElement* info = file->FindElement(key);
    mFileInfo->addTo(CZelXMLAdd(info != nullptr ? info : file->AddElement(key)));
}

void CZEL::writeDefinitions(CZelXMLIO& io)
{
    if (!CZelXMLGet(fileNode()).IsElement("InternalComponentDefinitions"))
        return;
    if (mDefinitions->size() > 0 && (mPoints->size() > 0 || mPolygons->size() > 0))
        sendMessage("Document geometry isn't written: internal components are present");

    const CZelXMLAdd section(renewSection("InternalComponentDefinitions"));
    for (std::int32_t i = 0; i < mDefinitions->size(); ++i) {
        CZelZelObjectDefinition& definition = *mDefinitions->at(i);
        const CZelXMLAdd wrapper(section.AddElement("InternalComponentDefinition"));
        wrapper.AddUUID("UUID", *definition.getId());
        wrapper.AddInteger("Geometry.Level", definition.getGeometryLevel());
        wrapper.AddElement("Points")->SetCData(new CPointsProvider(this));
        wrapper.AddElement("Polygons")->SetCData(new CPolygonsProvider(this));
        definition.addDefinition(io, wrapper.element());
    }
}

void CZEL::writeWorkingWindow(CZelXMLIO& io)
{
    // It always goes to the end, behind what this save adds, so that the next save finds nothing to
    // move.
    destroySections("Working.Window");
    const CZelXMLAdd window(CZelXMLAdd(fileNode()).AddElement("Working.Window"));
    addItems(io, window.AddElement("Parallel.Views"), "Parallel.View", *mWorkingViews);
}

void CZEL::renewInstructions()
{
    if (mApplicationInstruction != nullptr)
        mApplicationInstruction->SetContent(applicationText().c_str());
    if (mFormatInstruction == nullptr)
        return;
    const CZelVersion& oldest = mSaveVersion != nullptr ? *mSaveVersion : kMinVersion;
    const CZelVersion& safe = mSaveVersion != nullptr ? *mSaveVersion : kSafeVersion;
    const std::string text = "library=\"" + toText(kLibraryVersion) +
                             "\" file=\"6.0\" min_version=\"" + toText(oldest) +
                             "\" safe_version=\"" + toText(safe) + "\"";
    mFormatInstruction->SetContent(text.c_str());
}

void CZEL::moveFileInfo()
{
    // The probes read no further than this.
    const CZelXMLGet in(fileNode());
    XIXMLElement* info = in.FindElement("File.Info");
    XIXMLElement* preview = in.FindElement("Preview.Image");
    XIXMLData* next = preview != nullptr ? preview->GetNode()->GetNextNode() : nullptr;
    if (info != nullptr && next != nullptr && next != info->GetNode())
        fileNode()->InsertChild(info->GetNode(), next);
}

} // namespace OvZel
