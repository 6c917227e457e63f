#include "tools/CMeshWriter.h"

#include <zel/IZelPolygon.h>

#include <new>

namespace tool {

CMeshWriter::CMeshWriter(const CMeshSource& source, const OvZel::CZelUUID& id)
    : mSource(source), mBlock(source.mBlocks.at(id)), mIsMirrored(mBlock.transform.isMirrored()),
      mMesh(mBlock.begin)
{
}

void CMeshWriter::startFor(std::int32_t index)
{
    if (index >= mNext)
        return;
    mNext = 0;
    mMesh = mBlock.begin;
    mFirstPoint = 0;
    mInMesh = 0;
}

void CMeshWriter::enterNextMesh()
{
    mFirstPoint += mSource.mMeshes[mMesh].nbPoints;
    ++mMesh;
    mInMesh = 0;
}

// The first vertex at each place is the point; the numbers rise in the order of these vertices.
bool CMeshWriter::atPoint() const
{
    return mFirstPoint + mSource.mMeshes[mMesh].pointOfVertex[mInMesh] == mNext;
}

bool CMeshWriter::atPolygon() const
{
    return mesh().mFaces[mInMesh].mNumIndices >= 3;
}

bool CMeshWriter::getPoint(OvZel::CZelPoint* point, std::int32_t index)
{
    for (startFor(index); mMesh < mBlock.end; enterNextMesh())
        for (; mInMesh < mesh().mNumVertices; ++mInMesh) {
            if (!atPoint() || mNext++ != index)
                continue;
            const aiVector3D& place = mesh().mVertices[mInMesh++];
            *point = {place.x, place.y, place.z};
            if (mBlock.isMoved)
                *point = mBlock.transform.apply(*point);
            return true;
        }
    return false;
}

std::int32_t CMeshWriter::property() const
{
    const unsigned material = mesh().mMaterialIndex;
    const std::vector<std::int32_t>* const properties = mSource.mProperties;
    return properties && material < properties->size() ? (*properties)[material] : 0;
}

void CMeshWriter::fill(OvZel::IZelPolygon& polygon, const aiFace& face) const
{
    polygon.setSmooth(false);
    polygon.setMaterial(property());
    polygon.getHoles()->removeAllObjects();
    OvZel::TZelObjectMgr<OvZel::CZelVertex>& vertices = *polygon.getVertices();
    vertices.removeAllObjects();
    for (unsigned i = 0; i < face.mNumIndices; ++i) {
        const unsigned index = face.mIndices[mIsMirrored ? face.mNumIndices - 1 - i : i];
        OvZel::CZelVertex* vertex = vertices.newZelObject(-1);
        if (!vertex)
            throw std::bad_alloc();
        vertex->pointIndex = mFirstPoint + mSource.mMeshes[mMesh].pointOfVertex[index];
        if (!mesh().HasTextureCoords(0))
            continue;
        vertex->flags = OvZel::CZelVertex::kFlagM;
        vertex->u = mesh().mTextureCoords[0][index].x;
        vertex->v = mesh().mTextureCoords[0][index].y;
    }
}

bool CMeshWriter::getPolygon(OvZel::IZelPolygon* polygon, std::int32_t index)
{
    for (startFor(index); mMesh < mBlock.end; enterNextMesh())
        for (; mInMesh < mesh().mNumFaces; ++mInMesh) {
            if (!atPolygon() || mNext++ != index)
                continue;
            fill(*polygon, mesh().mFaces[mInMesh++]);
            return true;
        }
    return false;
}

} // namespace tool
