#pragma once

#include "core/CRange.h"
#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelBackground.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The older background of a view; the element "Background".
class CBackground : public TZelXMLFrontierObjLink<IZelBackground> {
public:
    static constexpr CRange kLinePower{0.0, 100.0};

    explicit CBackground(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    CZelColor getColor() const override { return mColor; }
    void setColor(const CZelColor& color) override { mColor = color; }
    CZelColor getSecondColor() const override { return mSecondColor; }
    void setSecondColor(const CZelColor& color) override { mSecondColor = color; }
    const CZelPoint& getUpDirection() const override { return mUpDirection; }
    void setUpDirection(const CZelPoint& direction) override { mUpDirection = direction; }
    double getLinePower() const override { return mLinePower; }
    void setLinePower(double power) override;
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? url : ""; }
    std::int32_t getImageType() const override { return mImageType; }
    void setImageType(std::int32_t type) override { mImageType = type; }
    std::int32_t getColorType() const override { return mColorType; }
    void setColorType(std::int32_t type) override { mColorType = type; }
    bool getUseDefault() const override { return mUseDefault; }
    void setUseDefault(bool useDefault) override { mUseDefault = useDefault; }
    double getOrigin() const override { return mOrigin; }
    void setOrigin(double origin) override { mOrigin = origin; }
    double getDirectionAngle() const override { return mDirectionAngle; }
    void setDirectionAngle(double angle) override { mDirectionAngle = angle; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    CZelColor mColor = CZelColor::rgb(255, 255, 255);
    CZelColor mSecondColor = CZelColor::rgb(0, 100, 255);
    CZelPoint mUpDirection = {1.296153, 1.0, 0.0};
    double mLinePower = 1.0;
    std::string mURL;
    std::int32_t mImageType = 0;
    std::int32_t mColorType = 2;
    bool mUseDefault = true;
    double mOrigin = 0.0;
    double mDirectionAngle = 0.0;
};

} // namespace OvZel
