#include "xml/CZelXMLBasicData.h"

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

} // namespace OvZel
