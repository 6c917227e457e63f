#pragma once

#include "tools/CNames.h"

#include <zel/IZelMgr.h>

#include <set>
#include <string>

namespace tool {

/// What the views of a document may name. They name a heliodon by its name, everything else by its
/// identifier.
struct CViewTargets {
    explicit CViewTargets(OvZel::IZelMgr& document)
        : grounds(*document.getGrounds()), lightsGroups(*document.getLightsGroups()),
          layers(*document.getLayers())
    {
        forEach(*document.getHeliodons(), [&](OvZel::IZelHeliodon& each, std::int32_t) {
            heliodons.insert(each.getBasicData()->getName());
        });
        forEach(*document.getEnvironments(), [&](OvZel::IZelEnvironment& each, std::int32_t) {
            environments.add(each.getId(), each.getName());
        });
    }

    std::set<std::string> heliodons;
    CNames environments;
    CNames grounds;
    CNames lightsGroups;
    CNames layers;
};

} // namespace tool
