#include "views/CZelDepthOfField.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

namespace {

constexpr CZelLabel kTypes[] = {
    {"FromPoint", 0}, {"FromTarget", 1}, {"FromInfinity", 2}, {"FromDistance", 3}, {nullptr, 0}};

} // namespace

OrvaneXML::XIXMLElement* CZelDepthOfField::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Depth.Of.Field");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelDepthOfField::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Depth.Of.Field")));
    return true;
}

void CZelDepthOfField::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Used", mUsed);
    out.AddAttributeLabel("Type", kTypes, mType);
    out.AddCoord3D("Clearness.Point", mClearnessPoint);
    out.AddDouble("Clearness.Dist.Inv", mClearnessDistanceInverse);
    out.AddDouble("Clearness.Size.Inv", mClearnessSizeInverse);
}

void CZelDepthOfField::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mUsed = in.IsElement("Used");
    mType = in.GetAttributeLabel("Type", kTypes);
    mClearnessPoint = in.GetPoint("Clearness.Point", io.getMgrRef());
    mClearnessDistanceInverse = in.GetDouble("Clearness.Dist.Inv");
    mClearnessSizeInverse = in.GetDouble("Clearness.Size.Inv");
}

} // namespace OvZel
