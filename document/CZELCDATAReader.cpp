#include "document/CZELCDATAReader.h"

#include "core/OvThrow.h"
#include "document/CZEL.h"
#include "geometry/CGeometryBlockReader.h"
#include "geometry/CPointsProvider.h"
#include "geometry/CPolygonsProvider.h"
#include "xml/CImageProvider.h"
#include "xml/CZelCancelled.h"
#include "xml/CZelXMLGet.h"

#include <memory>

using OrvaneXML::XIXMLElement;
using OrvaneXML::XIXMLReadStream;

namespace OvZel {

namespace {

/// From this library version on a load leaves the preview to readPreviewImage.
constexpr std::int32_t kPreviewStaysUnread = 5;

CZelUUID componentId(XIXMLElement& wrapper)
{
    const CZelXMLGet in(&wrapper);
    if (in.GetOptionalAttribute("UUID") == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No UUID attributes");
    const CZelUUID id = in.GetUUID("UUID");
    if (id.isNull())
        OvThrow::Signal("CZELCDATAReader::ReadCData - NULL UUID");
    return id;
}

std::int32_t geometryLevel(XIXMLElement& level)
{
    if (level.GetFirstText() == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No Geometry.Level data");
    int value = 0;
    CZelXMLGet::GetFmtData(&level, "%d", &value);
    return value;
}

} // namespace

CZELCDATAReader::CZELCDATAReader(CZEL& document, IZelExtStorageReader& storage, EMode mode)
    : mDocument(document), mStorage(storage), mMode(mode)
{
}

bool CZELCDATAReader::ReadCData(XIXMLElement* element, XIXMLReadStream* stream)
{
    const std::string tag = static_cast<const char*>(element->GetKey());
    const auto tell = [&](const char* text) {
        mDocument.sendMessage(
            (std::string("Error \"") + text + "\" while parsing '" + tag + "' data block").c_str());
    };
    try {
        readSection(*element, *stream);
        return true;
    } catch (const CZelCancelled& cancelled) {
        tell(cancelled.what());
        throw;
    } catch (const std::exception& exception) {
        tell(exceptionText(exception));
    } catch (...) {
        mDocument.sendMessage(
            ("Unknownm exception while parsing '" + tag + "' data block").c_str()); // (sic)
    }
    return false;
}

void CZELCDATAReader::readSection(XIXMLElement& element, XIXMLReadStream& stream)
{
    const OrvaneXML::XCXMLKey key = element.GetKey();
    if (key == "Preview.Image")
        readPreview(element, stream);
    else if (key == "Image")
        readImage(element, stream);
    else if (key == "Points" || key == "Polygons")
        readGeometry(element, stream);
    else
        OvThrow::Signal("CData block unknown");
}

void CZELCDATAReader::readPreview(XIXMLElement& element, XIXMLReadStream& stream)
{
    CZelImage* preview = mDocument.getPreviewImage();
    element.SetCData(new CImageProvider(&mDocument, preview));
    if (mDocument.getLibraryVersion()->major < kPreviewStaysUnread)
        preview->readImage(stream);
}

void CZELCDATAReader::readImage(XIXMLElement& element, XIXMLReadStream& stream)
{
    CZelImage& image = imageFor(element);
    element.SetCData(new CImageProvider(&mDocument, &image));
    image.readImage(stream);
}

CZelImage& CZELCDATAReader::imageFor(XIXMLElement& element)
{
    CZEL::CImages& images = *mDocument.getImages();
    if (mMode == EMode::Document && !std::exchange(mHasImages, true))
        images.removeAllObjects();
    const CZelXMLGet in(&element);
    const bool hasId = in.GetOptionalAttribute("UUID") != nullptr;
    if (mMode == EMode::Sections && hasId) {
        const CZelUUID id = in.GetUUID("UUID");
        if (CZelImage* known = knownImage(id))
            return *known;
    }
    // A picture whose identifier is bad stays too, under the one that it was made with.
    CZelImage* made = images.append();
    OvThrow::IfNULL(made);
    if (hasId) {
        const CZelUUID id = in.GetUUID("UUID");
        made->setId(&id);
    }
    return *made;
}

/// The first picture of the document with that identifier, or null.
CZelImage* CZELCDATAReader::knownImage(const CZelUUID& id)
{
    const CZEL::CImages& images = *mDocument.getImages();
    for (; mNbIndexed < images.size(); ++mNbIndexed)
        mImageIndex.emplace(*images.at(mNbIndexed)->getId(), mNbIndexed);
    const auto found = mImageIndex.find(id);
    return found != mImageIndex.end() && found->second < images.size() ? images.at(found->second)
                                                                       : nullptr;
}

CZELCDATAReader::CMeshOwner CZELCDATAReader::meshOwner(XIXMLElement& element)
{
    XIXMLElement* parent = element.GetNode()->GetParent();
    if (parent == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No parent node");
    if (parent->GetKey() != "InternalComponentDefinition")
        return {};
    CComponent& component = mComponents[parent];
    if (!component.isSettled)
        settle(*parent, component);
    if (!component.failure.empty())
        OvThrow::Signal("%s", component.failure.c_str());
    return component.owner;
}

/// Looks for what a component is, in the children that have come since the last look.
void CZELCDATAReader::settle(XIXMLElement& wrapper, CComponent& component)
{
    try {
        if (component.seen == nullptr)
            component.owner.id = componentId(wrapper);
        XIXMLElement* child = component.seen != nullptr ? component.seen->GetNextElement()
                                                        : wrapper.GetFirstElement();
        for (; child != nullptr; child = child->GetNextElement()) {
            component.seen = child;
            if (child->GetKey() == "Geometry.Level")
                break;
        }
        component.isSettled = child != nullptr;
        if (child == nullptr)
            OvThrow::Signal("CZELCDATAReader::ReadCData - No Geometry.Level element");
        component.owner.level = geometryLevel(*child);
    } catch (const std::exception& exception) {
        if (component.seen != nullptr && !component.isSettled)
            throw; // the level may still come
        component.isSettled = true;
        component.failure = exceptionText(exception);
    }
}

void CZELCDATAReader::readGeometry(XIXMLElement& element, XIXMLReadStream& stream)
{
    const CMeshOwner owner = meshOwner(element);
    if (!owner.id.isNull())
        mDocument.definitionOf(owner.id, owner.level);
    const std::unique_ptr<IZelExtStorageReader::IReader> mesh(
        mStorage.createGeometryReader(&owner.id, owner.level == 0));
    OvThrow::IfNULL(mesh.get());
    OrvaneXML::CXMLBufferedReader buffered(&stream);
    // The provider stands before the block is read: a block that fails must not take the place of
    // the mesh from the file.
    if (element.GetKey() == "Points") {
        element.SetCData(new CPointsProvider(&mDocument));
        CGeometryBlockReader(mDocument, buffered, *mesh).readPoints();
    } else {
        element.SetCData(new CPolygonsProvider(&mDocument));
        CGeometryBlockReader(mDocument, buffered, *mesh).readPolygons();
    }
}

} // namespace OvZel
