#pragma once

#include "objects/CZelObjectInstance.h"

#include <zel/IZelGroupInstances.h>

namespace OvZel {

/// What a group of instances has of its own, which is an address in the private data.
class CZelGroupInstances : public IObjectDelegate, public TZelFrontier<IZelGroupInstances> {
public:
    explicit CZelGroupInstances(CZelObjectInstance& instance) : mInstance(instance) {}

    const IZelObjectInstance* getObjectInstance() const override { return &mInstance; }
    IZelObjectInstance* getObjectInstance() override { return &mInstance; }
    const char* getUrl() const override { return mInstance.data().getText("Url"); }
    void setUrl(const char* url) override { mInstance.data().setText("Url", url); }

private:
    CZelObjectInstance& mInstance;
};

} // namespace OvZel
