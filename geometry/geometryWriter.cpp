#include "geometry/geometryWriter.h"

#include "core/OvThrow.h"
#include "xml/CZelXMLGet.h"
#include "xml/IBlockHost.h"

#include <zel/xml/XIXMLElement.h>

#include <stdexcept>

namespace OvZel {

namespace {

CZelUUID componentId(OrvaneXML::XIXMLData* node, const char* nullIdText)
{
    OvThrow::IfNULL(node);
    OrvaneXML::XIXMLElement* section = node->GetParent();
    OvThrow::IfNULL(section);
    OrvaneXML::XIXMLElement* owner = section->GetNode()->GetParent();
    if (owner == nullptr)
        return {};
    const char* text = CZelXMLGet(owner).GetOptionalAttribute("UUID");
    if (text == nullptr)
        return {};
    const CZelUUID id(text);
    if (id.isNull())
        throw std::runtime_error(nullIdText);
    return id;
}

} // namespace

std::unique_ptr<IZelExtStorageWriter::IWriter>
geometryWriter(IBlockHost& host, OrvaneXML::XIXMLData* node, const char* nullIdText)
{
    const CZelUUID id = componentId(node, nullIdText);
    IZelExtStorageWriter* storage = host.storageWriter();
    if (storage == nullptr)
        throw std::runtime_error("CZEL::getGeometryWriter - No external geometry reader set");
    return std::unique_ptr<IZelExtStorageWriter::IWriter>(storage->createGeometryWriter(&id));
}

} // namespace OvZel
