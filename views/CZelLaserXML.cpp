#include "views/CZelLaser.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelLaser::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Laser");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelLaser::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Laser")));
    return true;
}

void CZelLaser::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddBoolean("Active", mActive);
    out.AddCoord3D("Normal", mNormal);
    out.AddCoord3D("Reference", mReference);
    out.AddDouble("Distance", mDistance);
}

void CZelLaser::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mNormal = in.GetDirection("Normal", io.getMgrRef());
    mReference = in.GetPoint("Reference", io.getMgrRef());
    mDistance = in.GetDouble("Distance");
}

} // namespace OvZel
