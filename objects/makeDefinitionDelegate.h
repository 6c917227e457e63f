#pragma once

#include "objects/CZelZelObjectDefinition.h"

namespace OvZel {

/// The delegate of the definition's class, made from the private data; null for a class without
/// one. What is wrong with the data is raised.
std::unique_ptr<IObjectDelegate> makeDefinitionDelegate(CZelZelObjectDefinition& definition,
                                                        CZelXMLIO& io, const CZelXMLGet& data);

} // namespace OvZel
