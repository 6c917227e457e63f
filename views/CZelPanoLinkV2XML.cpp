#include "views/CZelPanoLinkV2.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelPanoLinkV2::addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    OrvaneXML::XIXMLElement* child = CZelXMLAdd(element).AddElement("PanoV2.Link");
    addTo(io, CZelXMLAdd(child));
    return child;
}

bool CZelPanoLinkV2::getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element)
{
    getFrom(io, CZelXMLGet(CZelXMLGet(element).GetElement("PanoV2.Link")));
    return true;
}

void CZelPanoLinkV2::addTo(CZelXMLIO&, const CZelXMLAdd& out) const
{
    out.AddUUID("UUID", *getId());
    CZelXMLAdd(out.AddElement("Start")).AddUUID("UUID", mStart);
    CZelXMLAdd(out.AddElement("End")).AddUUID("UUID", mEnd);
    CZelXMLAdd(out.AddElement("Path.Id")).AddUUID("UUID", mPathId);
}

void CZelPanoLinkV2::getFrom(CZelXMLIO& io, const CZelXMLGet& in)
{
    if (io.getUUID() && in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    mStart = CZelXMLGet(in.GetElement("Start")).GetUUID("UUID");
    mEnd = CZelXMLGet(in.GetElement("End")).GetUUID("UUID");
    mPathId = CZelXMLGet(in.GetElement("Path.Id")).GetUUID("UUID");
}

} // namespace OvZel
