#include "tools/CObjWriter.h"

#include "tools/CFileWriteStream.h"
#include "tools/oneLine.h"

#include <zel/IZelPolygon.h>

#include <charconv>
#include <string_view>

namespace tool {

using OvZel::CZelVertex;

// Documents keep six decimals, so more would only show how the sum of the digits was rounded.
void CObjWriter::addReal(double value)
{
    char text[400]; // the largest double has 309 digits in front of the point
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 6).ptr;
    std::string_view number(text, static_cast<std::size_t>(end - text));
    number = number.substr(0, number.find_last_not_of('0') + 1);
    if (number.back() == '.')
        number.remove_suffix(1);
    mLine += ' ';
    mLine += number == "-0" ? "0" : number;
}

void CObjWriter::addInteger(std::int64_t value)
{
    char text[24];
    mLine.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

void CObjWriter::startPoints(const OvZel::CZelUUID& id)
{
    mMesh = id;
    mNbPointsBefore += mNbPoints;
    mNbPoints = 0;
    if (!id.isNull())
        mStream.writeText("o component_" + idText(id) + "\n");
}

void CObjWriter::startPolygons(const OvZel::CZelUUID& id)
{
    if (id == mMesh)
        return;
    mMesh = id;
    mNbPointsBefore += mNbPoints;
    mNbPoints = 0;
}

void CObjWriter::addPoint(const OvZel::CZelPoint& point)
{
    ++mNbPoints;
    mLine = "v";
    addReal(point.x);
    addReal(point.y);
    addReal(point.z);
    mStream.writeText(mLine += "\n");
}

void CObjWriter::addPolygon(OvZel::IZelPolygon& polygon)
{
    addMaterial(polygon.getMaterial());
    const std::int32_t nbHoles = polygon.getHoles()->getNbObjects();
    if (nbHoles > 0) {
        ++mNbWithHoles;
        mStream.writeText("# a polygon with holes: its outer loop and " + std::to_string(nbHoles) +
                          " inner\n");
    }
    addLoop(*polygon.getVertices());
    for (std::int32_t i = 0; i < nbHoles; ++i)
        addLoop(*polygon.getHoles()->getZelObject(i)->getVertices());
}

void CObjWriter::addMaterial(std::int32_t material)
{
    if (mHasMaterial && material == mMaterial)
        return;
    mHasMaterial = true;
    mMaterial = material;
    mStream.writeText("usemtl material_" + std::to_string(material) + "\n");
}

bool CObjWriter::isFace(CVertices& vertices) const
{
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i) {
        const std::int32_t index = vertices.getZelObject(i)->pointIndex;
        if (index < 0 || index >= mNbPoints)
            return false;
    }
    return vertices.getNbObjects() >= 3;
}

static bool hasMapping(OvZel::TZelObjectMgr<CZelVertex>& vertices)
{
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i)
        if (vertices.getZelObject(i)->flags & CZelVertex::kFlagM)
            return true;
    return false;
}

// Readers want mapping numbers at all corners of a face or at none, so that corners without any
// get 0 0 when another corner of the face has some.
void CObjWriter::addMapping(CVertices& vertices)
{
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i) {
        const CZelVertex& vertex = *vertices.getZelObject(i);
        const bool isSet = vertex.flags & CZelVertex::kFlagM;
        mLine = "vt";
        addReal(isSet ? vertex.u : 0.0F);
        addReal(isSet ? vertex.v : 0.0F);
        mStream.writeText(mLine += "\n");
    }
    mNbMappings += vertices.getNbObjects();
}

void CObjWriter::addLoop(CVertices& vertices)
{
    if (!isFace(vertices)) {
        ++mNbLeftOut;
        return;
    }
    const bool isMapped = hasMapping(vertices);
    const std::int64_t firstMapping = mNbMappings + 1;
    if (isMapped)
        addMapping(vertices);
    mLine = "f";
    for (std::int32_t i = 0; i < vertices.getNbObjects(); ++i) {
        mLine += ' ';
        addInteger(mNbPointsBefore + vertices.getZelObject(i)->pointIndex + 1);
        if (!isMapped)
            continue;
        mLine += '/';
        addInteger(firstMapping + i);
    }
    mStream.writeText(mLine += "\n");
}

} // namespace tool
