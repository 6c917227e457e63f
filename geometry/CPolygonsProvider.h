#pragma once

#include "xml/CZELProvider.h"

namespace OvZel {

/// Writes the polygons of a mesh as the content of their section.
class CPolygonsProvider : public CZELProvider {
public:
    using CZELProvider::CZELProvider;

    OrvaneXML::XIXMLData::IXMLCData* Clone2() override;
    bool Write2(OrvaneXML::XIXMLWriteStream* stream, OrvaneXML::XIXMLData* node) override;
};

} // namespace OvZel
