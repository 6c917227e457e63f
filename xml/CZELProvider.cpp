#include "xml/CZELProvider.h"

#include "core/OvThrow.h"
#include "xml/CZelCancelled.h"
#include "xml/IBlockHost.h"

namespace OvZel {

CZELProvider::CZELProvider(IBlockHost* host) : mHost(host)
{
    OvThrow::IfNULL(host);
}

bool CZELProvider::Write(OrvaneXML::XIXMLWriteStream* stream, void*, OrvaneXML::XIXMLData* node)
{
    try {
        return Write2(stream, node);
    } catch (const CZelCancelled& cancelled) {
        mHost->sendMessage(cancelled.what());
        throw;
    } catch (const std::exception& exception) {
        mHost->sendMessage(exceptionText(exception));
    } catch (...) {
        mHost->sendMessage("Unknown provider writing exception");
    }
    return false;
}

OrvaneXML::XIXMLData::IXMLCData* CZELProvider::Clone()
{
    try {
        return Clone2();
    } catch (...) {
        return nullptr;
    }
}

} // namespace OvZel
