#include "materials/CMatteShadowNode.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

void CMatteShadowNode::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddDouble("Transparency", mValues.transparency);
}

void CMatteShadowNode::getFrom(CZelXMLIO&, const CZelXMLGet& in)
{
    mValues.transparency = kTransparency.clip(in.GetDouble("Transparency"));
}

} // namespace OvZel
