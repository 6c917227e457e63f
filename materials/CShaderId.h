#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelTCE.h>

namespace OvZel {

/// The identity operations of a material's tree.
///
/// Both faces of a root have a getId, one for the shader and one for the node, so each is
/// overridden in a class on its base alone.
class CShaderId : public TZelFrontier<IZelTCE> {
public:
    const CZelUUID& getId() const override { return mShaderId; }
    void setId(const CZelUUID& id) override { mShaderId = id; }

protected:
    ~CShaderId() = default;

private:
    CZelUUID mShaderId;
};

} // namespace OvZel
