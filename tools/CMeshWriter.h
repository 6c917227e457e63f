#pragma once

#include "tools/CMeshSource.h"

#include <assimp/scene.h>

namespace tool {

/// Gives one mesh of the document. The library asks for the records in their order; what it asks
/// for out of order is looked for from the beginning.
class CMeshWriter final : public OvZel::IZelExtStorageWriter::IWriter {
public:
    CMeshWriter(const CMeshSource& source, const OvZel::CZelUUID& id);

    std::int32_t getNbPoints() override { return mBlock.nbPoints; }
    bool getPoint(OvZel::CZelPoint* point, std::int32_t index) override;
    std::int32_t getNbPolygons() override { return mBlock.nbPolygons; }
    bool getPolygon(OvZel::IZelPolygon* polygon, std::int32_t index) override;

private:
    const aiMesh& mesh() const { return *mSource.mScene.mMeshes[mMesh]; }
    void startFor(std::int32_t index);
    void enterNextMesh();
    bool atPoint() const;
    bool atPolygon() const;
    std::int32_t property() const;
    void fill(OvZel::IZelPolygon& polygon, const aiFace& face) const;

    const CMeshSource& mSource;
    const CMeshSource::CBlock& mBlock;
    const bool mIsMirrored;
    std::int32_t mNext = 0; // index of the record to come
    unsigned mMesh = 0;
    std::int32_t mFirstPoint = 0; // of the mesh, among those of all
    unsigned mInMesh = 0;         // vertex or face
};

} // namespace tool
