#pragma once

#include <zel/IZelExtStorageReader.h>

namespace tool {

/// Lets the meshes of a document that is being read pass by, for what they are asked for later or
/// not at all.
class CNoMeshes final : public OvZel::IZelExtStorageReader {
public:
    IReader* createGeometryReader(const OvZel::CZelUUID*, bool) override { return new CNoMesh; }

private:
    class CNoMesh final : public IReader {
    public:
        void setNbPoints(std::int32_t) override {}
        bool setPoint(const OvZel::CZelPoint*, std::int32_t) override { return true; }
        void setNbPolygons(std::int32_t) override {}
        bool setPolygon(OvZel::IZelPolygon*, std::int32_t) override { return true; }
    };
};

} // namespace tool
