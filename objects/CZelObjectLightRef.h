#pragma once

#include "objects/CZelZelObjectInstance.h"

#include <zel/IZelObjectLightRef.h>

namespace OvZel {

/// Marks an instance of a light object; its lights are those of every object from a file.
class CZelObjectLightRef final : public CZelZelObjectInstance,
                                 public TZelFrontier<IZelObjectLightRef> {
public:
    using CZelZelObjectInstance::CZelZelObjectInstance;

    const IZelObjectInstance* getObjectInstance() const override { return &instance(); }
    IZelObjectInstance* getObjectInstance() override { return &instance(); }
};

} // namespace OvZel
