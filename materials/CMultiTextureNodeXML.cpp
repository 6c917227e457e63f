#include "materials/CMultiTextureNode.h"

#include "materials/mapsXML.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CMultiTextureNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Projection", kProjections, mValues.projection);
    out.AddDouble("Angle", mValues.angle);
    out.AddCoord3D("Origin", mValues.origin);
    out.AddDouble("X.Center", mValues.xCenter);
    out.AddDouble("Y.Center", mValues.yCenter);
    out.AddCoord3D("Normal", mValues.normal);
    out.AddCoord3D("X.Axis", mValues.xAxis);
    out.AddCoord3D("Y.Axis", mValues.yAxis);
    addSubParts(out, *mSubParts);
    out.AddColor("Reflection", mValues.reflection);
    out.AddDouble("Reflection.Limit", mValues.reflectionLimit);
    out.AddDouble("Glossy", mValues.glossy);
    out.AddDouble("Bump", mValues.bump);
    out.AddDouble("Normal.Map", mValues.normalMap);
    out.AddBoolean("Mix", mValues.mixFlag);
    out.AddDouble("Mix.Value", mValues.mixValue);
    out.AddColor("Mix.Color", mValues.mixColor);
    out.AddDouble("Threshold1", mValues.threshold1);
    out.AddDouble("Threshold2", mValues.threshold2);
    out.AddDouble("Transition", mValues.transition);
    out.AddDouble("Resolution", mValues.resolution);
    out.AddDouble("RandomSeed", mValues.randomSeed);
}

void CMultiTextureNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
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
    readSubParts(in, *mSubParts);
    mValues.glossy = in.GetDouble("Glossy");
    mValues.reflection = in.GetColor("Reflection");
    mValues.reflectionLimit = in.GetDouble("Reflection.Limit");
    mValues.bump = in.GetDouble("Bump");
    mValues.normalMap = in.GetDouble("Normal.Map");
    mValues.mixFlag = in.IsElement("Mix");
    mValues.mixColor = in.GetColor("Mix.Color");
    mValues.mixValue = in.GetDouble("Mix.Value");
    mValues.threshold1 = in.GetDouble("Threshold1");
    mValues.threshold2 = in.GetDouble("Threshold2");
    mValues.transition = in.GetDouble("Transition");
    mValues.resolution = in.GetDouble("Resolution");
    mValues.randomSeed = in.GetDouble("RandomSeed");
}

} // namespace OvZel
