#include "document/CZEL.h"

#include "core/OvThrow.h"
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

/// Gives a child with that tag an empty text or a new one, in its place.
void renewText(XIXMLElement& parent, const char* tag, const std::string& text)
{
    const OrvaneXML::XCXMLKey key = parent.MakeKey(tag);
    XIXMLElement* child = parent.FindElement(key);
    if (child == nullptr)
        child = parent.AddElement(key);
    child->GetNode()->SetText(text.c_str());
}

/// A fresh carrier of a block in front of the given node; those that were there go.
void renewBlock(XIXMLElement& wrapper, const char* tag, XIXMLData* before,
                XIXMLData::IXMLCData* provider)
{
    XIXMLElement* block = CZelXMLAdd(&wrapper).AddElement(tag);
    block->SetCData(provider);
    wrapper.InsertChild(block->GetNode(), before);
}

/// Destroys the elements of that name behind the given one.
void destroyOthers(XIXMLElement& first)
{
    for (XIXMLElement* other = first.GetNextSame(); other != nullptr;) {
        XIXMLElement* next = other->GetNextSame();
        other->Destroy();
        other = next;
    }
}

/// Null for a wrapper that a failed load left without a good identifier: no definition has it.
CZelUUID idOf(XIXMLElement& wrapper)
{
    try {
        return CZelXMLGet(&wrapper).GetUUID("UUID");
    } catch (const std::exception&) {
        return {};
    }
}

bool sameTexts(const IZelString& string, XIXMLElement& element)
{
    OrvaneXML::XIXMLAttribute* attribute = element.GetFirstAttribute();
    for (std::uint32_t i = 0; i < string.getNbTexts(); ++i) {
        if (attribute == nullptr)
            return false;
        const std::uint32_t key = string.getLanguageKey(i);
        const char name[] = {static_cast<char>(key >> 8 & 0xFF), static_cast<char>(key & 0xFF), 0};
        if (attribute->GetKey() != name ||
            std::string_view(attribute->GetValue()) != string.getText(key))
            return false;
        attribute = attribute->GetNext();
    }
    return attribute == nullptr;
}

/// The wrappers of a section and of those of the same name behind it, by identifier.
std::multimap<CZelUUID, XIXMLElement*> collectWrappers(XIXMLElement& section)
{
    std::multimap<CZelUUID, XIXMLElement*> wrappers;
    for (XIXMLElement* each = &section; each != nullptr; each = each->GetNextSame())
        for (XIXMLElement* child = CZelXMLGet(each).FindElement("InternalComponentDefinition");
             child != nullptr; child = child->GetNextSame())
            wrappers.emplace(idOf(*child), child);
    return wrappers;
}

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
        sendMessage((std::string("Error \"") + text + "\" while writting").c_str()); // (sic)
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

void CZEL::writeSections(CZelXMLIO&)
{
    for (const char* legacy :
         {"Heliodon", "Image", "Preview", "Ambient", "Atmosphere", "Background", "Panoramas"})
        destroySections(legacy);
    writeFileInfo();
    writeDefinitions();
    writeRootName();
    addRenderParameters(mRenderParameters, CZelXMLAdd(renewSection("Tmp.Render.Parameters")));
    destroySections("Current.Id");
    writeWorkingWindow();
}

void CZEL::writeFileInfo()
{
    XIXMLElement* file = fileNode();
    const OrvaneXML::XCXMLKey key = file->MakeKey("File.Info");
    XIXMLElement* info = file->FindElement(key);
    mFileInfo->addTo(CZelXMLAdd(info != nullptr ? info : file->AddElement(key)));
}

void CZEL::writeDefinitions()
{
    XIXMLElement* section = CZelXMLGet(fileNode()).FindElement("InternalComponentDefinitions");
    if (section == nullptr)
        return;
    if (mDefinitions->size() > 0 && (mPoints->size() > 0 || mPolygons->size() > 0))
        sendMessage("Document geometry isn't written: internal components are present");

    // A wrapper from the file keeps what else stands in it.
    std::multimap<CZelUUID, XIXMLElement*> wrappers = collectWrappers(*section);
    for (std::int32_t i = 0; i < mDefinitions->size(); ++i) {
        const CZelZelObjectDefinition& definition = *mDefinitions->at(i);
        XIXMLElement* wrapper;
        if (const auto known = wrappers.find(*definition.getId()); known != wrappers.end()) {
            wrapper = known->second;
            wrappers.erase(known);
        } else {
            wrapper = CZelXMLAdd(section).AddElement("InternalComponentDefinition");
        }
        section->InsertChild(wrapper->GetNode(), nullptr);
        writeWrapper(*wrapper, definition);
    }
    for (const auto& [id, wrapper] : wrappers)
        wrapper->Destroy();
    destroyOthers(*section);
}

void CZEL::writeWrapper(XIXMLElement& wrapper, const CZelZelObjectDefinition& definition)
{
    const CZelXMLAdd out(&wrapper);
    out.AddUUID("UUID", *definition.getId());
    renewText(wrapper, "Geometry.Level", std::to_string(definition.getGeometryLevel()));
    out.DestroyElements("Points");
    out.DestroyElements("Polygons");
    XIXMLData* next = CZelXMLGet(&wrapper).GetElement("Geometry.Level")->GetNode()->GetNextNode();
    renewBlock(wrapper, "Points", next, new CPointsProvider(this));
    renewBlock(wrapper, "Polygons", next, new CPolygonsProvider(this));
}

void CZEL::writeWorkingWindow()
{
    XIXMLElement* window = CZelXMLGet(fileNode()).FindElement("Working.Window");
    if (window == nullptr) {
        window = CZelXMLAdd(fileNode()).AddElement("Working.Window");
        CZelXMLAdd(window).AddElement("Parallel.Views");
    }
    // Only the first one was ever read. It always goes to the end, behind what this save adds, so
    // that the next save finds nothing to move.
    destroyOthers(*window);
    fileNode()->InsertChild(window->GetNode(), nullptr);
}

void CZEL::writeRootName()
{
    XIXMLElement* definition = CZelXMLGet(fileNode()).FindElement("Object.Definition");
    XIXMLElement* old =
        definition != nullptr ? CZelXMLGet(definition).FindElement("Name") : nullptr;
    const IZelString& name = mRootDefinition->definitionName();
    if (old == nullptr || sameTexts(name, *old))
        return;
    XIXMLElement* fresh = CZelXMLAdd(definition).AddLanguages("Name", name);
    definition->InsertChild(fresh->GetNode(), old->GetNode());
    old->Destroy();
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
