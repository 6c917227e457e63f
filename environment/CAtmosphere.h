#pragma once

#include "core/CRange.h"
#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelAtmosphere.h>

#include <limits>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The haze of a view.
class CAtmosphere : public TZelXMLFrontierObjLink<IZelAtmosphere> {
public:
    static constexpr CRange kDensity{0.0, 1.0};
    static constexpr CRange kNotNegative{0.0, std::numeric_limits<double>::infinity()};

    /// The owner may be null.
    explicit CAtmosphere(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    double getHighDensity() const override { return mHighDensity; }
    void setHighDensity(double density) override;
    double getMediumDensity() const override { return mMediumDensity; }
    void setMediumDensity(double density) override;
    double getLowDensity() const override { return mLowDensity; }
    void setLowDensity(double density) override;
    double getScale() const override { return mScale; }
    void setScale(double scale) override;
    double getMinDistance() const override { return mMinDistance; }
    void setMinDistance(double distance) override { mMinDistance = distance; }
    double getMaxDistance() const override { return mMaxDistance; }
    void setMaxDistance(double distance) override;
    double getNoise() const override { return mNoise; }
    void setNoise(double noise) override;
    bool getUseDefault() const override { return mUseDefault; }
    void setUseDefault(bool useDefault) override { mUseDefault = useDefault; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    /// Stores first, so that a client which looks while it is warned sees the limit.
    void store(double& field, const CRange& range, double value, const char* text);

    bool mUsed = false;
    bool mUseDefault = true;
    CZelColor mColor = CZelColor::rgb(221, 221, 221);
    double mHighDensity = 0.6;
    double mMediumDensity = 0.6;
    double mLowDensity = 0.6;
    double mScale = 2.0;
    double mMinDistance = 0.0;
    double mMaxDistance = 0.0;
    double mNoise = 0.0;
};

} // namespace OvZel
