#include "animation/CZelAnimatedElement.h"

#include "xml/listXML.h"

namespace OvZel {

namespace {

// None for the 0 of a new element.
constexpr CZelLabel kElementTypes[] = {{"Sequence", 1}, {"Light", 2},    {"Object", 4},
                                       {"Heliodon", 3}, {"Property", 5}, {"Mapping.Node", 6},
                                       {nullptr, 0}};

} // namespace

OrvaneXML::XIXMLElement* CZelAnimatedElement::addXML(CZelXMLIO& io,
                                                     OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("Animated.Element");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelAnimatedElement::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Animated.Element")));
    return true;
}

void CZelAnimatedElement::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    out.AddAttributeLabel("Type", kElementTypes, mElementType);
    out.AddUUID("UUID", mId);
    addItems(io, out.ReuseElement("Interpolated.Values"), "Interpolated.Value", *mValues);
}

void CZelAnimatedElement::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mElementType = in.GetAttributeLabel("Type", kElementTypes);
    mId = in.GetUUID("UUID");
    getOptionalItems(io, in, "Interpolated.Values", "Interpolated.Value", *mValues);
}

} // namespace OvZel
