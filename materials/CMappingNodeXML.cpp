#include "materials/CMappingNode.h"

#include "core/CZelMgrRef.h"
#include "materials/mapsXML.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <stdexcept>

namespace OvZel {

void CMappingNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    addMaps(out, mMaps);
    if (!mLinkedMaps.empty()) {
        const CZelXMLAdd linked(out.AddElement("Maps.Linked"));
        for (const CZelUUID& id : mLinkedMaps)
            CZelXMLAdd(linked.AddElement("Map.Node")).AddUUID("Id", id);
    }
    out.AddCoord3D("Normal", mValues.normal);
    out.AddCoord3D("Origin", mValues.origin);
    out.AddCoord3D("X.Axis", mValues.xAxis);
    out.AddCoord3D("Y.Axis", mValues.yAxis);
    out.AddDouble("Angle", mValues.angle);
    out.AddDouble("Width", mValues.width);
    out.AddDouble("Height", mValues.height);
    out.AddDouble("Bump", mValues.bump);
    out.AddDouble("Relief", mValues.relief);
    out.AddDouble("X.Center", mValues.xCenter);
    out.AddDouble("Y.Center", mValues.yCenter);
    out.AddDouble("X.Delta", mValues.xDelta);
    out.AddDouble("Y.Delta", mValues.yDelta);
    out.AddDouble("Glossy", mValues.glossy);
    out.AddBoolean("X.Repeat", mValues.xRepeat);
    out.AddBoolean("Y.Repeat", mValues.yRepeat);
    out.AddColor("Specular", mValues.specular);
    out.AddColor("Transparent", mValues.transparent);
    out.AddColor("Reflection", mValues.reflection);
    out.AddDouble("Reflection.Limit", mValues.reflectionLimit);
    if (mValues.cutOut1Flag)
        out.AddColor("CutOut1", mValues.cutOut1Color);
    if (mValues.cutOut2Flag)
        out.AddColor("CutOut2", mValues.cutOut2Color);
    out.AddBoolean("CutSet", mValues.cutSet);
    out.AddBoolean("CutAlpha", mValues.cutAlpha);
    out.AddBoolean("X.Invert", mValues.xInvert);
    out.AddBoolean("Y.Invert", mValues.yInvert);
    out.AddBoolean("X.Mirror", mValues.xMirror);
    out.AddBoolean("Y.Mirror", mValues.yMirror);
    out.AddBoolean("Alpha.Bump", mValues.alphaBump);
    out.AddBoolean("Alpha.Transparency", mValues.alphaTransparency);
    out.AddAttributeLabel("Projection", kProjections, mValues.projection);
    out.AddBoolean("Visible", mValues.visible);
    out.AddBoolean("Mix", mValues.mixFlag);
    out.AddColor("Mix.Color", mValues.mixColor);
    out.AddDouble("Mix.Value", mValues.mixValue);
    out.AddBoolean("MIPMAP", mValues.mipmap);
    out.AddBoolean("Trilinear.Filter", mValues.trilinearFilter);
    out.AddBoolean("Display.Mode", mValues.displayMode);
    out.AddDouble("Brightness", mValues.brightness);
    out.AddDouble("Contrast", mValues.contrast);
    out.AddInteger("Frame", mValues.frame);
    out.AddInteger("Movie.Length", mValues.movieLength);
    out.AddDouble("Normal.Map", mValues.normalMap);
    out.AddUUID("MappingNode.Id", mValues.mappingNodeId);
    out.AddUUID("MappingNode.Parent.Id", mValues.parentMappingNodeId);
    out.AddBoolean("Glossy.Activated", mValues.glossyActivated);
}

void CMappingNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    getMapsFrom(in);
    getLinkedMapsFrom(in);
    mValues.normal = in.GetDirection("Normal", io.getMgrRef());
    mValues.origin = in.GetPoint("Origin", io.getMgrRef());
    mValues.xAxis = in.GetDirection("X.Axis", io.getMgrRef());
    mValues.yAxis = in.GetDirection("Y.Axis", io.getMgrRef());
    mValues.angle = in.GetDouble("Angle");
    mValues.width = in.GetDouble("Width");
    mValues.height = in.GetDouble("Height");
    mValues.bump = in.GetDouble("Bump");
    if (in.IsElement("Relief"))
        mValues.relief = in.GetDouble("Relief");
    mValues.xCenter = kCenter.clip(in.GetDouble("X.Center"));
    mValues.yCenter = kCenter.clip(in.GetDouble("Y.Center"));
    mValues.xDelta = in.GetDouble("X.Delta");
    mValues.yDelta = in.GetDouble("Y.Delta");
    mValues.glossy = kGlossy.clip(in.GetDouble("Glossy"));
    mValues.xRepeat = in.IsElement("X.Repeat");
    mValues.yRepeat = in.IsElement("Y.Repeat");
    mValues.specular = in.GetColor("Specular");
    mValues.transparent = in.GetColor("Transparent");
    mValues.reflection = in.GetColor("Reflection");
    if (in.IsElement("Reflection.Limit"))
        mValues.reflectionLimit = in.GetDouble("Reflection.Limit");
    mValues.cutOut1Flag = in.IsElement("CutOut1");
    if (mValues.cutOut1Flag)
        mValues.cutOut1Color = in.GetColor("CutOut1");
    mValues.cutOut2Flag = in.IsElement("CutOut2");
    if (mValues.cutOut2Flag)
        mValues.cutOut2Color = in.GetColor("CutOut2");
    mValues.cutSet = in.IsElement("CutSet");
    mValues.cutAlpha = in.IsElement("CutAlpha");
    mValues.xInvert = in.IsElement("X.Invert");
    mValues.yInvert = in.IsElement("Y.Invert");
    mValues.xMirror = in.IsElement("X.Mirror");
    mValues.yMirror = in.IsElement("Y.Mirror");
    mValues.alphaBump = in.IsElement("Alpha.Bump");
    mValues.alphaTransparency = in.IsElement("Alpha.Transparency");
    mValues.projection = in.GetAttributeLabel("Projection", kProjections);
    // Older files had no label for the plane, but an element.
    if (mValues.projection == kOrthogonal && in.IsElement("Planar"))
        mValues.projection = kPlanar;
    mValues.visible = in.IsElement("Visible");
    mValues.mixFlag = in.IsElement("Mix");
    mValues.mixColor = in.GetColor("Mix.Color");
    mValues.mixValue = kMixValue.clip(in.GetDouble("Mix.Value"));
    mValues.mipmap = in.IsElement("MIPMAP");
    mValues.trilinearFilter = in.IsElement("Trilinear.Filter");
    mValues.displayMode = in.IsElement("Display.Mode");
    if (in.IsElement("Brightness"))
        mValues.brightness = in.GetDouble("Brightness");
    if (in.IsElement("Contrast"))
        mValues.contrast = in.GetDouble("Contrast");
    if (in.IsElement("Frame"))
        mValues.frame = in.GetInteger("Frame");
    if (in.IsElement("Movie.Length"))
        mValues.movieLength = in.GetInteger("Movie.Length");
    if (in.IsElement("Normal.Map"))
        mValues.normalMap = in.GetDouble("Normal.Map");
    getIdentitiesFrom(io, in);
    mValues.glossyActivated = in.IsElement("Glossy.Activated");
}

void CMappingNode::getMapsFrom(const CZelXMLGet& in)
{
    mMaps.clear();
    // Older files have the diffuse map alone.
    if (in.IsElement("URL"))
        mMaps.setURL(kDiffuseMap, in.GetText("URL"));
    else
        readMaps(CZelXMLGet(in.GetElement("Maps")), mMaps);
}

void CMappingNode::getLinkedMapsFrom(const CZelXMLGet& in)
{
    mLinkedMaps.clear();
    if (!in.IsElement("Maps.Linked"))
        return;
    auto* child = CZelXMLGet(in.GetElement("Maps.Linked")).FindElement("Map.Node");
    for (; child != nullptr; child = child->GetNextSame())
        addLinkedMap(CZelXMLGet(child).GetUUID("Id"));
}

// With a table of identities the node keeps its fresh one and the table remembers by which it went
// in the file, so that the nodes read after it find their parent.
void CMappingNode::getIdentitiesFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    CZelXMLIO::CIdentities* table = io.identities();
    if (in.GetOptionalAttribute("MappingNode.Id") != nullptr) {
        const CZelUUID id = in.GetUUID("MappingNode.Id");
        if (id.isNull())
            getEnclosingMgr()->warning("CZelXMLIO::GetMappingNode - nodeId is NULL");
        if (table != nullptr)
            table->emplace(id, mValues.mappingNodeId);
        else
            mValues.mappingNodeId = id;
    }
    if (in.GetOptionalAttribute("MappingNode.Parent.Id") == nullptr)
        return;
    const CZelUUID parentId = in.GetUUID("MappingNode.Parent.Id");
    if (parentId.isNull())
        return;
    if (table == nullptr)
        mValues.parentMappingNodeId = parentId;
    else if (const auto place = table->find(parentId); place != table->end())
        mValues.parentMappingNodeId = place->second;
    else
        getEnclosingMgr()->warning( // (sic)
            "CZelXMLIO::GetMappingNode - ParentId refered by child before we meet the parent");
}

void CMappingNode::checkSingleType(eNodeType type) const
{
    if (type != eMappingNode)
        throw std::runtime_error("CZelXMLIO::GetMappingNode : xml node is not a mapping node");
}

} // namespace OvZel
