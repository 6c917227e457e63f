#include "geometry/CZelQuad.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CZelQuad::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.element()->GetNode()->Print("%08X", static_cast<unsigned>(mQuadId));
    out.AddTriangle(mTriangle.data());
}

void CZelQuad::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    unsigned digits = 0;
    CZelXMLGet::GetFmtData(in.element(), "%X", &digits);
    mQuadId = static_cast<std::int32_t>(digits); // eight digits hold a signed number
    mTriangle = in.GetTriangle(io.getMgrRef());
}

} // namespace OvZel
