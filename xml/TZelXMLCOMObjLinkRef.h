#pragma once

#include "core/TZelCOMObjLinkRef.h"
#include "xml/CZelXMLBasicData.h"

namespace OvZel {

/// A counted object with an XML form that keeps the small counted owner object of its manager.
template <class I, class Body = TZelFrontier<I>, class Basic = CZelXMLBasicData>
using TZelXMLCOMObjLinkRef = TZelCOMObjLinkRef<I, Body, Basic>;

} // namespace OvZel
