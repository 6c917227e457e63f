#include "xml/CZelXMLIO.h"

#include "core/OvThrow.h"

namespace OvZel {

CZelXMLIO::CZelXMLIO(IZelMgrRef* mgrRef, bool getUUID) : mMgrRef(mgrRef), mGetUUID(getUUID)
{
    OvThrow::IfNULL(mgrRef);
}

} // namespace OvZel
