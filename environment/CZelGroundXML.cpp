#include "environment/CZelGround.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <cstdio>

namespace OvZel {

OrvaneXML::XIXMLElement* CZelGround::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    const CZelXMLAdd out(CZelXMLAdd(element).AddElement("Ground"));
    addTo(io, out);
    return out.element();
}

bool CZelGround::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("Ground")));
    return true;
}

void CZelGround::addTo(CZelXMLIO& io, const CZelXMLAdd& out) const
{
    CZelXMLAdd(out.AddElement("Name")).AddAttribute("en", getName());
    out.AddUUID("UUID", *getId());
    out.AddBoolean("Active", mActive);
    out.AddDouble("Height", mHeight);
    mProperty->addTo(io, CZelXMLAdd(out.AddElement("Property")));
}

void CZelGround::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    mActive = in.IsElement("Active");
    mHeight = in.GetDouble("Height");
    mProperty->getFrom(io, CZelXMLGet(in.GetElement("Property")));
    setName(in.GetAttributeLanguage("Name"));
    if (in.GetOptionalAttribute("UUID") != nullptr && io.getUUID()) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    } else {
        // One of the few lines that go to the console: existing clients look for it there.
        std::fputs("CZelXMLIO::GetGround - no UUID or mGetUUID == false\n", stdout);
    }
}

} // namespace OvZel
