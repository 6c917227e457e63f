#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelClouds.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The clouds of a sky.
class CZelClouds : public TZelXMLFrontierObjLink<IZelClouds> {
public:
    /// The owner may be null.
    explicit CZelClouds(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    bool getActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    double getCumulusSize() const override { return mCumulusSize; }
    void setCumulusSize(double size) override { mCumulusSize = size; }
    std::int32_t getCumulusSeed() const override { return mCumulusSeed; }
    void setCumulusSeed(std::int32_t seed) override { mCumulusSeed = seed; }
    double getCirrusSize() const override { return mCirrusSize; }
    void setCirrusSize(double size) override { mCirrusSize = size; }
    std::int32_t getCirrusSeed() const override { return mCirrusSeed; }
    void setCirrusSeed(std::int32_t seed) override { mCirrusSeed = seed; }
    double getStratusSize() const override { return mStratusSize; }
    void setStratusSize(double size) override { mStratusSize = size; }
    std::int32_t getStratusSeed() const override { return mStratusSeed; }
    void setStratusSeed(std::int32_t seed) override { mStratusSeed = seed; }
    double getCirrocumulusSize() const override { return mCirrocumulusSize; }
    void setCirrocumulusSize(double size) override { mCirrocumulusSize = size; }
    std::int32_t getCirrocumulusSeed() const override { return mCirrocumulusSeed; }
    void setCirrocumulusSeed(std::int32_t seed) override { mCirrocumulusSeed = seed; }
    bool getActiveWind() const override { return mActiveWind; }
    void setActiveWind(bool active) override { mActiveWind = active; }
    double getWindSpeed() const override { return mWindSpeed; }
    void setWindSpeed(double speed) override { mWindSpeed = speed; }
    double getWindDirection() const override { return mWindDirection; }
    void setWindDirection(double direction) override { mWindDirection = direction; }
    double getWindOffset() const override { return mWindOffset; }
    void setWindOffset(double offset) override { mWindOffset = offset; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mActive = false;
    bool mActiveWind = false;
    double mCumulusSize = 0.6;
    double mCirrusSize = 0.5;
    double mStratusSize = 0.2;
    double mCirrocumulusSize = 0.4;
    std::int32_t mCumulusSeed = 0;
    std::int32_t mCirrusSeed = 0;
    std::int32_t mStratusSeed = 0;
    std::int32_t mCirrocumulusSeed = 0;
    double mWindSpeed = 20.0;
    double mWindDirection = 0.0;
    double mWindOffset = 0.0;
};

} // namespace OvZel
