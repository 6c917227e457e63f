#include "xml/CZelXMLRef.h"

#include "xml/inXMLFrame.h"

namespace OvZel {

OrvaneXML::XIXMLElement* CZelXMLRef::putInXML(OrvaneXML::XIXMLElement* element)
{
    return inXMLFrame(CZelMgrRef::from(mOwner->getMgrRef()), "CZelXMLRef::putInXML", element, false,
                      [&](CZelXMLIO& io) { return addXML(io, element); });
}

bool CZelXMLRef::initWithXML(OrvaneXML::XIXMLElement* element, bool getUUID)
{
    return inXMLFrame(CZelMgrRef::from(mOwner->getMgrRef()), "CZelXMLRef::initWithXML", element,
                      getUUID, [&](CZelXMLIO& io) { return getXML(io, element); });
}

} // namespace OvZel
