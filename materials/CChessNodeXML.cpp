#include "materials/CChessNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kGeometries[] = {{"Cylinder", 0}, {"Sphere", 1}, {"Cube", 2}, {nullptr, 0}};

} // namespace

void CChessNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddCoord3D("Origin", mValues.origin);
    out.AddCoord3D("X.Axis", mValues.xAxis);
    out.AddCoord3D("Y.Axis", mValues.yAxis);
    out.AddCoord3D("Z.Axis", mValues.zAxis);
    out.AddCoord3D("Size", mValues.size);
    out.AddCoord3D("Proportion", mValues.proportion);
    out.AddBoolean("Checker", mValues.checker);
    out.AddBoolean("Smooth", mValues.smooth);
    out.AddAttributeLabel("Geometry", kGeometries, mValues.geometry);
    out.AddTable("Table1", *mTable1);
    out.AddTable("Table2", *mTable2);
    out.AddTable("Table3", *mTable3);
}

void CChessNode::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mValues.origin = in.GetPoint("Origin", io.getMgrRef());
    mValues.xAxis = in.GetDirection("X.Axis", io.getMgrRef());
    mValues.yAxis = in.GetDirection("Y.Axis", io.getMgrRef());
    mValues.zAxis = in.GetDirection("Z.Axis", io.getMgrRef());
    mValues.size = in.GetVector("Size", io.getMgrRef());
    mValues.proportion = in.GetVector("Proportion", io.getMgrRef());
    mValues.checker = in.IsElement("Checker");
    mValues.smooth = in.IsElement("Smooth");
    mValues.geometry = in.GetAttributeLabel("Geometry", kGeometries);
    in.GetTable("Table1", *mTable1);
    in.GetTable("Table2", *mTable2);
    in.GetTable("Table3", *mTable3);
}

CChessNode::XIXMLElement* CChessNode::addChildElement(const CZelXMLAdd& out,
                                                      std::int32_t index) const
{
    if (index == 1)
        return out.AddElement("SecondNode");
    return TTCENode::addChildElement(out, index);
}

CChessNode::XIXMLElement* CChessNode::getChildElement(const CZelXMLGet& in,
                                                      XIXMLElement* previous) const
{
    if (previous != nullptr && previous->GetKey() == "Node")
        return in.GetElement("SecondNode");
    return TTCENode::getChildElement(in, previous);
}

} // namespace OvZel
