#include "xml/CZelXMLBasicData.h"

#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"
#include "xml/inXMLFrame.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelXMLBasicData::putInXML(OrvaneXML::XIXMLElement* element)
{
    return inXMLFrame(getWarningTarget(), "CZelXMLBasicData::putInXML", element, false,
                      [&](CZelXMLIO& io) { return addXML(io, element); });
}

bool CZelXMLBasicData::initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID)
{
    return inXMLFrame(getWarningTarget(), "CZelXMLBasicData::initWithXML", element, getUUID,
                      [&](CZelXMLIO& io) { return getXML(io, element); });
}

void CZelXMLBasicData::getOptionalId(const CZelXMLIO& io, const CZelXMLGet& in)
{
    if (!io.getUUID() || in.GetOptionalAttribute("UUID") == nullptr)
        return;
    const CZelUUID id = in.GetUUID("UUID");
    setId(&id);
}

} // namespace OvZel
