#pragma once

#include "geometry/CFastReader.h"

#include <zel/IZelExtStorageReader.h>

namespace OvZel {

class IBlockHost;

/// Decodes one points or polygons block into a storage. Failures are exceptions; what was handed to
/// the storage before stays there.
class CGeometryBlockReader {
public:
    CGeometryBlockReader(IBlockHost& host, OrvaneXML::CXMLBufferedReader& in,
                         IZelExtStorageReader::IReader& storage);

    void readPoints();
    void readPolygons();

private:
    IBlockHost& mHost;
    CZelMgrRef& mMgrRef;
    CFastReader mIn;
    IZelExtStorageReader::IReader& mStorage;
};

} // namespace OvZel
