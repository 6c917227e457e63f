#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelRadiosityControl.h>

namespace OvZel {

/// The radiosity values of rendering options.
class CRadiosityControl : public TZelFrontier<IZelRadiosityControl> {
public:
    virtual ~CRadiosityControl() = default;

    bool getOn() const override { return mOn; }
    void setOn(bool on) override { mOn = on; }
    double getQuality() const override { return mQuality; }
    void setQuality(double quality) override { mQuality = quality; }
    double getFactor() const override { return mFactor; }
    void setFactor(double factor) override { mFactor = factor; }

private:
    bool mOn = false;
    double mQuality = 4.0;
    double mFactor = 1.0;
};

} // namespace OvZel
