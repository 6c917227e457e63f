#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelGodRays.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The rays of a heliodon.
class CZelGodRays : public TZelFrontier<IZelGodRays> {
public:
    virtual ~CZelGodRays() = default;

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    double getPower() const override { return mPower; }
    void setPower(double power) override { mPower = power; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mUsed = false;
    double mPower = 1.0;
};

} // namespace OvZel
