#pragma once

#include "core/CZelMgrRef.h"
#include "core/OvThrow.h"
#include "xml/CZelXMLIO.h"

#include <exception>
#include <utility>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {

/// Runs one add or get operation for a client: failures go to the warning target, which may be
/// null, and the result is then null or false.
template <class Body>
auto inXMLFrame(CZelMgrRef* target, const char* context, OrvaneXML::XIXMLElement* element,
                bool getUUID, Body&& body) -> decltype(body(std::declval<CZelXMLIO&>()))
{
    try {
        OvThrow::IfNULL(element);
        CZelXMLIO io(target, getUUID);
        return body(io);
    } catch (const std::exception& exception) {
        if (target != nullptr)
            target->exceptionWarning(context, exception);
    } catch (...) {
        if (target != nullptr)
            target->unknownExceptionWarning(context);
    }
    return {};
}

} // namespace OvZel
