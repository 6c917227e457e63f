#pragma once

#include "core/CZelMgrRef.h"
#include "core/TZelComPtr.h"
#include "geometry/CZELGeoWriter.h"
#include "xml/IBlockHost.h"

#include <zel/xml/XIXMLData.h>

namespace OvZel {

/// One section of the mesh of a definition that is written alone: Provider, one of those of the
/// document, with the definition's own lists behind it. The tree may outlive definition and
/// document, so it keeps the lists.
template <class Provider>
class TMeshBlock final : public OrvaneXML::XIXMLData::IXMLCData,
                         private IBlockHost,
                         private IZelExtStorageWriter {
public:
    using CPoints = CZELGeoWriter::CPoints;
    using CPolygons = CZELGeoWriter::CPolygons;

    TMeshBlock(IZelMgrRef& mgrRef, CPoints& points, CPolygons& polygons)
        : mMgrRef(&mgrRef), mPoints(&points), mPolygons(&polygons), mProvider(this)
    {
    }

    bool Write(OrvaneXML::XIXMLWriteStream* stream, void* reserved,
               OrvaneXML::XIXMLData* node) override
    {
        return mProvider.Write(stream, reserved, node);
    }
    IXMLCData* Clone() override { return new TMeshBlock(*mMgrRef, *mPoints, *mPolygons); }

private:
    IZelMgrRef& blockMgrRef() override { return *mMgrRef; }
    void sendMessage(const char* text) override { CZelMgrRef::from(mMgrRef.get())->warning(text); }
    void reportProgress(std::int32_t, std::int32_t) override {}
    IZelExtStorageWriter* storageWriter() override { return this; }
    IWriter* createGeometryWriter(const CZelUUID*) override
    {
        return new CZELGeoWriter(*mMgrRef, *mPoints, *mPolygons);
    }

    TZelComPtr<IZelMgrRef> mMgrRef;
    TZelComPtr<CPoints> mPoints;
    TZelComPtr<CPolygons> mPolygons;
    Provider mProvider;
};

} // namespace OvZel
