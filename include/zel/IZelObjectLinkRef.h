#pragma once

#include <zel/IUnknown.h>
#include <zel/IZelObjectLink.h>

namespace OvZel {

/// A counted object that can stand as the owner of other objects.
class IZelObjectLinkRef : public IUnknown, public IZelObjectLink {
public:
    static constexpr CZelUUID sIID{"0D22DAC5459C478B83E0A9FF0C8758CC"};

protected:
    ~IZelObjectLinkRef() = default;
};

} // namespace OvZel
