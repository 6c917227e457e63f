#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// A named set of lights that a client switches together.
///
/// A group is nothing but its basic data. A light lists the identifiers of its groups; removing a
/// group leaves them in those lists.
class IZelLightsGroup : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"22CEF1BFC12745C694A05C0EFA85E3F1"};

protected:
    ~IZelLightsGroup() override = default;
};

} // namespace OvZel
