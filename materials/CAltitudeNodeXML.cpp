#include "materials/CAltitudeNode.h"

#include "materials/mapsXML.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CAltitudeNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("Angle", mValues.angle);
    out.AddCoord3D("Origin", mValues.origin);
    out.AddDouble("X.Center", mValues.xCenter);
    out.AddDouble("Y.Center", mValues.yCenter);
    out.AddDouble("HighStartValue", mValues.highStartValue);
    out.AddDouble("MedStartValue", mValues.medStartValue);
    out.AddDouble("Smoothness", mValues.smoothness);
    out.AddDouble("Slope", mValues.slope);
    out.AddDouble("SlopeAmplify", mValues.slopeAmplify);
    out.AddDouble("TransitionContrast", mValues.transitionContrast);
    out.AddDouble("RandomSeed", mValues.randomSeed);
    out.AddDouble("Bump", mValues.bump);
    out.AddDouble("Normal.Map", mValues.normalMap);
    out.AddBoolean("Mix", mValues.mixFlag);
    out.AddDouble("Mix.Value", mValues.mixValue);
    out.AddColor("Mix.Color", mValues.mixColor);
    addSubParts(out, *mSubParts);
}

void CAltitudeNode::getFirst(CZelXMLIO&, const CZelXMLGet& in)
{
    readSubParts(in, *mSubParts);
}

void CAltitudeNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mValues.angle = in.GetDouble("Angle");
    mValues.origin = in.GetPoint("Origin", io.getMgrRef());
    if (in.IsElement("X.Center"))
        mValues.xCenter = in.GetDouble("X.Center");
    if (in.IsElement("Y.Center"))
        mValues.yCenter = in.GetDouble("Y.Center");
    mValues.highStartValue = in.GetDouble("HighStartValue");
    mValues.medStartValue = in.GetDouble("MedStartValue");
    mValues.slope = in.GetDouble("Slope");
    mValues.smoothness = in.GetDouble("Smoothness");
    mValues.slopeAmplify = in.GetDouble("SlopeAmplify");
    mValues.transitionContrast = in.GetDouble("TransitionContrast");
    mValues.randomSeed = in.GetDouble("RandomSeed");
    mValues.bump = in.GetDouble("Bump");
    mValues.normalMap = in.GetDouble("Normal.Map");
    mValues.mixFlag = in.IsElement("Mix");
    mValues.mixColor = in.GetColor("Mix.Color");
    mValues.mixValue = in.GetDouble("Mix.Value");
}

} // namespace OvZel
