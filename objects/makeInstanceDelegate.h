#pragma once

#include "objects/CZelObjectInstance.h"

namespace OvZel {

/// The delegate of the instance's class, made from the private data; null for a class without one.
std::unique_ptr<IObjectDelegate> makeInstanceDelegate(CZelObjectInstance& instance, CZelXMLIO& io,
                                                      const CZelXMLGet& data);

} // namespace OvZel
