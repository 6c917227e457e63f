#pragma once

#include <zel/IZelExtStorageWriter.h>
#include <zel/xml/XIXMLData.h>

#include <memory>

namespace OvZel {

class IBlockHost;

/// The supplier of the mesh to which a points or polygons section belongs, asked from the current
/// storage writer of the document; null when that refuses.
///
/// The element above the section's own names the component by its "UUID"; without one the mesh is
/// the document's own. A null identifier there raises nullIdText, a missing storage writer
/// "CZEL::getGeometryWriter - No external geometry reader set" (sic).
std::unique_ptr<IZelExtStorageWriter::IWriter>
geometryWriter(IBlockHost& host, OrvaneXML::XIXMLData* node, const char* nullIdText);

} // namespace OvZel
