#pragma once

#include "objects/CZelZelObjectDefinition.h"

#include <zel/IZelObjectLight.h>

namespace OvZel {

/// Marks a definition whose instances carry lights.
class CZelObjectLight final : public TZelFrontier<IZelObjectLight>, public IObjectDelegate {
public:
    explicit CZelObjectLight(CZelZelObjectDefinition& definition) : mDefinition(definition) {}

    const IZelZelObjectDefinition* getDefinition() const override { return &mDefinition; }
    IZelZelObjectDefinition* getDefinition() override { return &mDefinition; }

private:
    CZelZelObjectDefinition& mDefinition;
};

} // namespace OvZel
