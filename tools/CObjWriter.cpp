#include "tools/CObjWriter.h"

#include "tools/CFileWriteStream.h"
#include "tools/objText.h"

#include <algorithm>

namespace tool {

using OvZel::CZelVertex;

void CObjWriter::startMesh(const OvZel::CZelUUID& id)
{
    finish();
    mHasMesh = true;
    mMesh = id;
    mMaterialNames = &mMaterials.namesOf(id);
    mMeshPlaces = &mPlaces.of(id);
    startPlace(mMeshPlaces->front());
}

void CObjWriter::startPlace(const CObjPlace& place)
{
    mPlace = &place;
    mIsMirrored = place.transform.isMirrored();
    mNbPointsBefore += mNbPoints;
    mNbPoints = 0;
    if (place.name.empty())
        return;
    mStream.writeText("o " + place.name + "\n");
    if (!place.comment.empty())
        mStream.writeText("# " + place.comment + "\n");
    mMaterial.clear(); // readers differ in whether an object takes over that of the one before
}

void CObjWriter::startPoints(const OvZel::CZelUUID& id)
{
    startMesh(id);
}

void CObjWriter::startPolygons(const OvZel::CZelUUID& id)
{
    if (!mHasMesh || id != mMesh)
        startMesh(id);
}

void CObjWriter::addPoint(const OvZel::CZelPoint& point)
{
    if (mMeshPlaces->size() > 1)
        mKept.points.push_back(point);
    writePoint(point);
}

static void addLoop(OvZel::TZelObjectMgr<CZelVertex>& vertices, std::vector<CZelVertex>& corners,
                    std::vector<std::uint32_t>& loopSizes)
{
    const std::int32_t nbCorners = vertices.getNbObjects();
    loopSizes.push_back(static_cast<std::uint32_t>(nbCorners));
    for (std::int32_t i = 0; i < nbCorners; ++i)
        corners.push_back(*vertices.getZelObject(i));
}

void CObjWriter::addPolygon(OvZel::IZelPolygon& polygon)
{
    mPolygon.loopSizes.clear();
    mPolygon.corners.clear();
    addLoop(*polygon.getVertices(), mPolygon.corners, mPolygon.loopSizes);
    for (std::int32_t i = 0; i < polygon.getHoles()->getNbObjects(); ++i)
        addLoop(*polygon.getHoles()->getZelObject(i)->getVertices(), mPolygon.corners,
                mPolygon.loopSizes);
    const CPolygon head{polygon.getMaterial(),
                        static_cast<std::uint32_t>(mPolygon.loopSizes.size())};
    if (mMeshPlaces->size() > 1) {
        mKept.polygons.push_back(head);
        mKept.loopSizes.insert(mKept.loopSizes.end(), mPolygon.loopSizes.begin(),
                               mPolygon.loopSizes.end());
        mKept.corners.insert(mKept.corners.end(), mPolygon.corners.begin(), mPolygon.corners.end());
    }
    writePolygon(head, mPolygon.loopSizes.data(), mPolygon.corners.data());
}

void CObjWriter::finish()
{
    for (std::size_t i = 1; mHasMesh && i < mMeshPlaces->size(); ++i) {
        startPlace((*mMeshPlaces)[i]);
        writeKept();
    }
    mKept = CMesh();
    mHasMesh = false;
}

void CObjWriter::writeKept()
{
    for (const OvZel::CZelPoint& point : mKept.points)
        writePoint(point);
    const std::uint32_t* loopSizes = mKept.loopSizes.data();
    const CZelVertex* corners = mKept.corners.data();
    for (const CPolygon& polygon : mKept.polygons) {
        writePolygon(polygon, loopSizes, corners);
        for (std::uint32_t i = 0; i < polygon.nbLoops; ++i)
            corners += *loopSizes++;
    }
}

void CObjWriter::writePoint(const OvZel::CZelPoint& point)
{
    ++mNbPoints;
    const OvZel::CZelPoint place = mPlace->transform.apply(point);
    mLine = "v";
    addReal(mLine, place.x);
    addReal(mLine, place.y);
    addReal(mLine, place.z);
    mStream.writeText(mLine += "\n");
}

void CObjWriter::writePolygon(const CPolygon& polygon, const std::uint32_t* loopSizes,
                              const CZelVertex* corners)
{
    writeMaterial(polygon.material);
    if (polygon.nbLoops > 1) {
        ++mNbWithHoles;
        mStream.writeText("# a polygon with holes: its outer loop and " +
                          std::to_string(polygon.nbLoops - 1) + " inner\n");
    }
    for (std::uint32_t i = 0; i < polygon.nbLoops; ++i) {
        writeLoop(corners, loopSizes[i]);
        corners += loopSizes[i];
    }
}

void CObjWriter::writeMaterial(std::int32_t material)
{
    const std::vector<std::string>& names = *mMaterialNames;
    const std::string name = material >= 0 && static_cast<std::size_t>(material) < names.size()
                                 ? names[static_cast<std::size_t>(material)]
                                 : "material_" + std::to_string(material);
    if (name == mMaterial)
        return;
    mMaterial = name;
    mStream.writeText("usemtl " + name + "\n");
}

bool CObjWriter::isFace(const CZelVertex* corners, std::uint32_t nbCorners) const
{
    return nbCorners >= 3 && std::all_of(corners, corners + nbCorners, [&](const CZelVertex& v) {
               return v.pointIndex >= 0 && v.pointIndex < mNbPoints;
           });
}

// Readers want mapping numbers at all corners of a face or at none, so that corners without any
// get 0 0 when another corner of the face has some.
void CObjWriter::writeMapping(const CZelVertex* corners, std::uint32_t nbCorners)
{
    for (std::uint32_t i = 0; i < nbCorners; ++i) {
        const bool isSet = corners[i].flags & CZelVertex::kFlagM;
        mLine = "vt";
        addReal(mLine, isSet ? corners[i].u : 0.0F);
        addReal(mLine, isSet ? corners[i].v : 0.0F);
        mStream.writeText(mLine += "\n");
    }
    mNbMappings += nbCorners;
}

void CObjWriter::writeLoop(const CZelVertex* corners, std::uint32_t nbCorners)
{
    if (!isFace(corners, nbCorners)) {
        ++mNbLeftOut;
        return;
    }
    const bool isMapped = std::any_of(corners, corners + nbCorners, [](const CZelVertex& v) {
        return v.flags & CZelVertex::kFlagM;
    });
    const std::int64_t firstMapping = mNbMappings + 1;
    if (isMapped)
        writeMapping(corners, nbCorners);
    mLine = "f";
    for (std::uint32_t i = 0; i < nbCorners; ++i) {
        const std::uint32_t corner = mIsMirrored ? nbCorners - 1 - i : i;
        mLine += ' ';
        addInteger(mLine, mNbPointsBefore + corners[corner].pointIndex + 1);
        if (!isMapped)
            continue;
        mLine += '/';
        addInteger(mLine, firstMapping + corner);
    }
    mStream.writeText(mLine += "\n");
}

} // namespace tool
