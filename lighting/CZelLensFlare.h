#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelLensFlare.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The flare of a light or a heliodon.
class CZelLensFlare : public TZelFrontier<IZelLensFlare> {
public:
    virtual ~CZelLensFlare() = default;

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    double getIntensity() const override { return mIntensity; }
    void setIntensity(double intensity) override { mIntensity = intensity; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mUsed = false;
    std::int32_t mType = 0;
    double mSize = 1.0;
    double mIntensity = 1.0;
};

} // namespace OvZel
