#include <zel/IUnknown.h>

namespace OvZel {

constinit const CZelUUID IID_IUnknown{"0000000000000000C000000000000046"};

} // namespace OvZel
