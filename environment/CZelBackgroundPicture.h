#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelBackgroundPicture.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The picture behind the scene; the element "Background.Picture".
class CZelBackgroundPicture : public TZelXMLFrontierObjLink<IZelBackgroundPicture> {
public:
    explicit CZelBackgroundPicture(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? url : ""; }
    bool get3D() const override { return mIs3D; }
    void set3D(bool is3D) override { mIs3D = is3D; }
    CZelColor getFirstColor() const override { return mFirstColor; }
    void setFirstColor(const CZelColor& color) override { mFirstColor = color; }
    CZelColor getSecondColor() const override { return mSecondColor; }
    void setSecondColor(const CZelColor& color) override { mSecondColor = color; }
    CZelColor getThirdColor() const override { return mThirdColor; }
    void setThirdColor(const CZelColor& color) override { mThirdColor = color; }
    CZelColor getFourthColor() const override { return mFourthColor; }
    void setFourthColor(const CZelColor& color) override { mFourthColor = color; }
    double getHOffset() const override { return mHOffset; }
    void setHOffset(double offset) override { mHOffset = offset; }
    double getVOffset() const override { return mVOffset; }
    void setVOffset(double offset) override { mVOffset = offset; }
    bool getLightingFlag() const override { return mLightingFlag; }
    void setLightingFlag(bool lights) override { mLightingFlag = lights; }
    double getLightingIntensity() const override { return mLightingIntensity; }
    void setLightingIntensity(double intensity) override { mLightingIntensity = intensity; }
    double getBackgroundIntensity() const override { return mBackgroundIntensity; }
    void setBackgroundIntensity(double intensity) override { mBackgroundIntensity = intensity; }
    double getHorizontalRoll() const override { return mHorizontalRoll; }
    void setHorizontalRoll(double roll) override { mHorizontalRoll = roll; }
    double getWidth() const override { return mWidth; }
    void setWidth(double width) override { mWidth = width; }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    bool getKeepProportions() const override { return mKeepProportions; }
    void setKeepProportions(bool keep) override { mKeepProportions = keep; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mType = 0;
    std::string mURL;
    bool mIs3D = false;
    CZelColor mFirstColor = CZelColor::rgb(255, 255, 255);
    CZelColor mSecondColor = CZelColor::rgb(255, 255, 255);
    CZelColor mThirdColor = CZelColor::rgb(255, 255, 255);
    CZelColor mFourthColor = CZelColor::rgb(0, 0, 0);
    double mHOffset = 0.0;
    double mVOffset = 0.0;
    bool mLightingFlag = false;
    double mLightingIntensity = 0.5;
    double mBackgroundIntensity = 0.5;
    double mHorizontalRoll = 0.0;
    double mWidth = 1.0;
    double mHeight = 1.0;
    bool mKeepProportions = true;
};

} // namespace OvZel
