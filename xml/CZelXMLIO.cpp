#include "xml/CZelXMLIO.h"

#include "core/OvThrow.h"
#include "xml/tree/XCXMLTree.h"

namespace OvZel {

CZelXMLIO::CZelXMLIO(IZelMgrRef* mgrRef, bool getUUID) : mMgrRef(mgrRef), mGetUUID(getUUID)
{
    OvThrow::IfNULL(mgrRef);
}

CZelXMLIO::~CZelXMLIO() = default;

} // namespace OvZel
