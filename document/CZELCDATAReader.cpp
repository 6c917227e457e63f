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

/// The mesh that a geometry block is for: a component, or with a null identifier the document.
struct CMeshOwner {
    CZelUUID id;
    std::int32_t level = 0;
};

CMeshOwner componentOf(XIXMLElement& wrapper)
{
    const CZelXMLGet in(&wrapper);
    CMeshOwner owner;
    if (in.GetOptionalAttribute("UUID") == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No UUID attributes");
    owner.id = in.GetUUID("UUID");
    if (owner.id.isNull())
        OvThrow::Signal("CZELCDATAReader::ReadCData - NULL UUID");
    XIXMLElement* level = in.FindElement("Geometry.Level");
    if (level == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No Geometry.Level element");
    if (level->GetFirstText() == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No Geometry.Level data");
    owner.level = in.GetInteger("Geometry.Level");
    return owner;
}

CMeshOwner meshOwner(XIXMLElement& element)
{
    XIXMLElement* parent = element.GetNode()->GetParent();
    if (parent == nullptr)
        OvThrow::Signal("CZELCDATAReader::ReadCData - No parent node");
    if (parent->GetKey() == "InternalComponentDefinition")
        return componentOf(*parent);
    return {};
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
        for (std::int32_t i = 0; i < images.size(); ++i)
            if (*images.at(i)->getId() == id)
                return *images.at(i);
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
