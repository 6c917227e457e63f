#pragma once

#include <zel/CZelUUID.h>

namespace OvZel {

/// One identifier of an identifier list, handed out as a pointer to it. Null in a new one.
class CZelUUIDX : public CZelUUID {};

} // namespace OvZel
