#include "document/CZEL.h"

#include "core/OvThrow.h"
#include "document/CCheckZELFile.h"
#include "document/CReadMediaInfo.h"
#include "document/CZELCDATAReader.h"
#include "document/CZELXMLReadStream.h"
#include "render/renderParametersXML.h"
#include "xml/CZelCancelled.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/listXML.h"
#include "xml/tree/CXMLTreeReader.h"

#include <set>
#include <utility>

using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

/// Runs a read; what goes wrong becomes a message and false.
template <class Operation>
bool guarded(CZEL& document, Operation operation)
{
    try {
        return operation();
    } catch (const CZelCancelled&) {
        // The section that was cancelled has told it.
    } catch (const std::exception& exception) {
        document.sendMessage(exceptionText(exception));
    } catch (...) {
        document.sendMessage("Unknown reading error");
    }
    return false;
}

/// A section that isn't there, or has no items, leaves its list as it stands.
template <class Mgr>
void readList(CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag sectionTag,
              OrvaneXML::CXMLTag itemTag, Mgr& list)
{
    XIXMLElement* section = in.FindElement(sectionTag);
    if (section != nullptr && CZelXMLGet(section).IsElement(itemTag))
        getItems(io, section, itemTag, list);
}

/// A section that isn't there leaves its list as it stands; one without items empties it.
template <class Mgr>
void readWholeList(CZelXMLIO& io, const CZelXMLGet& in, OrvaneXML::CXMLTag sectionTag,
                   OrvaneXML::CXMLTag itemTag, Mgr& list)
{
    if (XIXMLElement* section = in.FindElement(sectionTag))
        getItems(io, section, itemTag, list);
}

} // namespace

bool CZEL::read(IZelReadStream* stream, IZelExtStorageReader* reader)
{
    return guarded(*this, [&] {
        OvThrow::IfNULL(stream);
        return readDocument(*stream, reader != nullptr ? *reader : *this);
    });
}

bool CZEL::readDocument(IZelReadStream& stream, IZelExtStorageReader& reader)
{
    mDefinitionIndex.reset();
    CZELXMLReadStream source(&stream);
    const std::int64_t start = stream.getPosition();
    CCheckZELFile check;
    check.Parse(&source);
    if (check.library().major == 0) {
        sendMessage("Not a valid zel file");
        return false;
    }
    stream.setPosition(start);
    mFileMajor = check.fileMajor();
    mFileMinor = check.fileMinor();
    mLibraryVersion = check.library();

    CZELCDATAReader sections(*this, reader, CZELCDATAReader::EMode::Document);
    OrvaneXML::CXMLTreeReader treeReader(&sections);
    installTree(std::unique_ptr<OrvaneXML::XCXMLTree>(treeReader.ReadTree(&source)));

    CZelXMLIO io(mMgrRef.getPtr(), true);
    io.setFileVersion(&mLibraryVersion);
    readSections(io, CZelXMLGet(mFileNode));
    layOutFixedElements();
    mendComponents();
    return true;
}

void CZEL::installTree(std::unique_ptr<OrvaneXML::XCXMLTree> tree)
{
    mTree = std::move(tree);
    XIXMLElement* root = mTree->GetRoot();
    mFileNode = root->FindElement(root->MakeKey("Zel.File"));
    mApplicationInstruction = nullptr;
    mFormatInstruction = nullptr;
    for (OrvaneXML::XIXMLData* node = root->GetFirstNode(); node != nullptr;
         node = node->GetNextNode()) {
        OrvaneXML::XIXMLInstruction* instruction = node->AsInstruction();
        if (instruction == nullptr)
            continue;
        const std::string target = instruction->GetTarget();
        if (target == "Application" && mApplicationInstruction == nullptr)
            mApplicationInstruction = instruction;
        else if (target == "Zel" && mFormatInstruction == nullptr)
            mFormatInstruction = instruction;
    }
    if (mApplicationInstruction != nullptr)
        takeApplication(mApplicationInstruction->GetContent());
}

void CZEL::takeApplication(std::string text)
{
    // All leading characters of this set go, so a name that begins with n, a, m or e loses them;
    // files have been read this way from the start.
    constexpr char kOpening[] = "name=\"";
    constexpr char kMiddle[] = "\" version=\"";
    constexpr std::size_t kMiddleLength = sizeof kMiddle - 1;
    text.erase(0, text.find_first_not_of(kOpening));
    const std::size_t middle = text.find(kMiddle);
    if (text.size() < kMiddleLength || middle == std::string::npos)
        return;
    mApplicationName = text.substr(0, middle);
    const std::string version = text.substr(middle + kMiddleLength);
    if (const std::size_t end = version.find('"'); end != std::string::npos)
        mApplicationVersion = version.substr(0, end);
}

void CZEL::readSections(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (in.IsElement("File.Info"))
        mFileInfo->getFrom(CZelXMLGet(in.GetElement("File.Info")));
    if (in.IsElement("InternalComponentDefinitions"))
        readDefinitions(io, CZelXMLGet(in.GetElement("InternalComponentDefinitions")));
    readList(io, in, "Perspective.Views", "Perspective.View", *mCameras);
    readList(io, in, "Heliodons", "Heliodon", *mHeliodons);
    readList(io, in, "Parallel.Views", "Parallel.View", *mParallelViews);
    readList(io, in, "PanoramasV2", "PanoramaV2", *mPanoramas);
    for (std::int32_t i = 0; i < mPanoramas->size(); ++i)
        mPanoramas->at(i)->removeDanglingLinks();
    readList(io, in, "Animations", "Animation", *mAnimations);
    readList(io, in, "View.Objects", "View.Object", *mViewObjects);
    readList(io, in, "Billboards", "Billboard", *mBillboards);
    readWholeList(io, in, "Properties", "Property", *mProperties);
    readList(io, in, "Lights", "Light", *mLights);
    readWholeList(io, in, "Lights.Groups", "Lights.Group", *mLightsGroups);
    XIXMLElement* window = in.FindElement("Working.Window");
    OvThrow::IfNULL(window);
    readList(io, CZelXMLGet(window), "Parallel.Views", "Parallel.View", *mWorkingViews);
    mRootDefinition->getDefinition(io, in.element());
    readList(io, in, "Object.Instances", "Object.Instance", *mObjectInstances);
    readList(io, in, "Scenarios", "Scenario", *mScenarios);
    readPaths(io, in);
    readList(io, in, "Grounds", "Ground", *mGrounds);
    readList(io, in, "Layers", "Layer", *mLayers);
    if (in.IsElement("Layers.Info"))
        mLayerInfo->getFrom(io, CZelXMLGet(in.GetElement("Layers.Info")));
    if (in.IsElement("Tmp.Render.Parameters"))
        OvZel::getRenderParameters(mRenderParameters,
                                   CZelXMLGet(in.GetElement("Tmp.Render.Parameters")));
    readList(io, in, "ExternalDefinitions", "External.Definition", *mExternalDefinitions);
}

void CZEL::readDefinitions(CZelXMLIO& io, const CZelXMLGet& in)
{
    // Their geometry blocks have made them; of two with one identifier the first is meant here.
    std::set<std::pair<CZelUUID, std::int32_t>> places;
    for (std::int32_t i = 0; i < mDefinitions->size(); ++i)
        places.emplace(*mDefinitions->at(i)->getId(), i);
    for (XIXMLElement* wrapper = in.FindElement("InternalComponentDefinition"); wrapper != nullptr;
         wrapper = wrapper->GetNextSame()) {
        const CZelXMLGet item(wrapper);
        const CZelUUID id = item.GetUUID("UUID");
        const auto found = places.lower_bound({id, 0});
        OvThrow::IfFalse(found != places.end() && found->first == id);
        const std::int32_t place = found->second;
        CZelZelObjectDefinition& definition = *mDefinitions->at(place);
        definition.setGeometryLevel(item.GetInteger("Geometry.Level"));
        definition.getDefinition(io, wrapper);
        // What is inside may give it another identifier.
        places.erase(found);
        places.emplace(*definition.getId(), place);
    }
}

void CZEL::readPaths(CZelXMLIO& io, const CZelXMLGet& in)
{
    // The old name of the section wins over the present one, which it takes.
    XIXMLElement* section = in.FindElement("3D.Paths");
    if (section != nullptr)
        section->SetKey(section->MakeKey("Paths.3D"));
    else
        section = in.FindElement("Paths.3D");
    if (section != nullptr)
        getItems(io, section, "Path.3D", *m3DPaths);
}

/// Early libraries had one component, and its instance did not name it.
void CZEL::mendComponents()
{
    constexpr CZelVersion kNamesComponents{3, 0, 1};
    if (!(mLibraryVersion < kNamesComponents) || mDefinitions->size() == 0 ||
        mObjectInstances->size() == 0)
        return;
    IZelInternalComponentInstance* component =
        mObjectInstances->at(0)->asInternalComponentInstance();
    if (component != nullptr && component->getComponentUUID().isNull())
        component->setComponentUUID(*mDefinitions->at(0)->getId());
}

void CZEL::readCData(IZelReadStream* stream, IZelExtStorageReader* reader)
{
    guarded(*this, [&] {
        OvThrow::IfNULL(stream);
        mDefinitionIndex.reset();
        CZELXMLReadStream source(stream);
        CZELCDATAReader sections(*this, reader != nullptr ? *reader : *this,
                                 CZELCDATAReader::EMode::Sections);
        OrvaneXML::CXMLTreeReader treeReader(&sections);
        const std::unique_ptr<OrvaneXML::XCXMLTree> discarded(treeReader.ReadTree(&source));
        return true;
    });
}

bool CZEL::readMediaInfo(IZelReadStream* stream)
{
    try {
        OvThrow::IfNULL(stream);
        CZELXMLReadStream source(stream);
        CReadMediaInfo(mRootDefinition->definitionName()).FastParse(&source);
    } catch (...) {
        // What was found up to here is the answer.
    }
    return true;
}

} // namespace OvZel
