#pragma once

#include "xml/TZelXMLFrontierObjLink.h"
#include "xml/tree/CXMLTag.h"

#include <zel/IZelCameraLight.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The camera light or the radiosity light of a view.
class CZelCameraLight : public TZelXMLFrontierObjLink<IZelCameraLight> {
public:
    static constexpr std::uint8_t kCamera = 0;
    static constexpr std::uint8_t kRadiosity = 1;

    CZelCameraLight(IZelObjectLink* owner, std::uint8_t kind)
        : TZelXMLFrontierObjLink(owner), mKind(kind)
    {
    }

    bool getUsed() const override { return mUsed; }
    void setUsed(bool used) override { mUsed = used; }
    std::uint8_t getKind() const override { return mKind; }
    void setKind(std::uint8_t kind) override { mKind = kind; }
    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    double getPower() const override { return mPower; }
    void setPower(double power) override { mPower = power; }

    /// The name of its element, which follows the kind.
    OrvaneXML::CXMLTag tag() const
    {
        return mKind == kCamera ? OrvaneXML::CXMLTag("Camera.Light") : "Radiosity.Light";
    }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    bool mUsed = false;
    std::uint8_t mKind;
    CZelColor mColor = CZelColor::rgb(255, 255, 255);
    double mPower = 1.0;
};

} // namespace OvZel
