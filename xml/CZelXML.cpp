#include "xml/CZelXML.h"

#include "xml/inXMLFrame.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelXML::putInXML(OrvaneXML::XIXMLElement* element)
{
    return inXMLFrame(CZelMgrRef::from(mSelf->getMgrRef()), "CZelXML::putInXML", element, false,
                      [&](CZelXMLIO& io) { return addXML(io, element); });
}

bool CZelXML::initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID)
{
    return inXMLFrame(CZelMgrRef::from(mSelf->getMgrRef()), "CZelXML::initWithXML", element,
                      getUUID, [&](CZelXMLIO& io) { return getXML(io, element); });
}

} // namespace OvZel
