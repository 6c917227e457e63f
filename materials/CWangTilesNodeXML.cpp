#include "materials/CWangTilesNode.h"

#include "core/OvThrow.h"
#include "materials/mapsXML.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

void addTiles(const CZelXMLAdd& out, CMultiMapsMgr& tiles)
{
    const CZelXMLAdd container(out.AddElement("Sub.Parts"));
    for (std::int32_t i = 0; i < tiles.size(); ++i)
        addMaps(container, *tiles.at(i));
}

void readTiles(const CZelXMLGet& in, CMultiMapsMgr& tiles)
{
    tiles.removeAllObjects();
    // Older files have the tiles directly under the node.
    const CZelXMLGet container(in.IsElement("Sub.Parts") ? in.GetElement("Sub.Parts")
                                                         : in.element());
    OrvaneXML::XIXMLElement* maps = container.FindElement("Maps");
    for (; maps != nullptr; maps = maps->GetNextSame()) {
        CZelMultiMaps* tile = tiles.append();
        OvThrow::IfNULL(tile);
        readMaps(CZelXMLGet(maps), *tile);
    }
}

} // namespace

void CWangTilesNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Projection", kProjections, mValues.projection);
    out.AddDouble("Angle", mValues.angle);
    out.AddCoord3D("Origin", mValues.origin);
    out.AddDouble("X.Center", mValues.xCenter);
    out.AddDouble("Y.Center", mValues.yCenter);
    out.AddCoord3D("Normal", mValues.normal);
    out.AddCoord3D("X.Axis", mValues.xAxis);
    out.AddCoord3D("Y.Axis", mValues.yAxis);
    out.AddDouble("RandomSeed", mValues.randomSeed);
    out.AddDouble("TexturesWidth", mValues.texturesWidth);
    out.AddDouble("TexturesHeight", mValues.texturesHeight);
    out.AddColor("Reflection", mValues.reflection);
    out.AddDouble("Reflection.Limit", mValues.reflectionLimit);
    out.AddDouble("Glossy", mValues.glossy);
    out.AddDouble("Bump", mValues.bump);
    out.AddDouble("Normal.Map", mValues.normalMap);
    out.AddBoolean("Mix", mValues.mixFlag);
    out.AddDouble("Mix.Value", mValues.mixValue);
    out.AddColor("Mix.Color", mValues.mixColor);
    out.AddColor("Transparent", mValues.transparent);
    out.AddDouble("Ambient", mValues.ambient);
    addTiles(out, *mTiles);
}

void CWangTilesNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mValues.projection = in.GetAttributeLabel("Projection", kProjections);
    mValues.angle = in.GetDouble("Angle");
    if (in.IsElement("Origin"))
        mValues.origin = in.GetPoint("Origin", io.getMgrRef());
    if (in.IsElement("X.Center"))
        mValues.xCenter = in.GetDouble("X.Center");
    if (in.IsElement("Y.Center"))
        mValues.yCenter = in.GetDouble("Y.Center");
    mValues.normal = in.GetDirection("Normal", io.getMgrRef());
    mValues.xAxis = in.GetDirection("X.Axis", io.getMgrRef());
    mValues.yAxis = in.GetDirection("Y.Axis", io.getMgrRef());
    mValues.randomSeed = in.GetDouble("RandomSeed");
    mValues.texturesWidth = in.GetDouble("TexturesWidth");
    mValues.texturesHeight = in.GetDouble("TexturesHeight");
    mValues.glossy = in.GetDouble("Glossy");
    mValues.reflection = in.GetColor("Reflection");
    mValues.reflectionLimit = in.GetDouble("Reflection.Limit");
    mValues.bump = in.GetDouble("Bump");
    mValues.normalMap = in.GetDouble("Normal.Map");
    mValues.mixFlag = in.IsElement("Mix");
    mValues.mixColor = in.GetColor("Mix.Color");
    mValues.mixValue = kMixValue.clip(in.GetDouble("Mix.Value"));
    mValues.transparent = in.GetColor("Transparent");
    mValues.ambient = in.GetDouble("Ambient");
    readTiles(in, *mTiles);
}

} // namespace OvZel
