#pragma once

#include "core/TZelFrontier.h"

#include <zel/IZelTexture.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The picture of a billboard, a part of its entry.
class CZelTexture final : public TZelFrontier<IZelTexture> {
public:
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? url : ""; }
    const CZelPoint& getOrigin() const override { return mOrigin; }
    void setOrigin(const CZelPoint& origin) override { mOrigin = origin; }
    const CZelPoint& getXAxis() const override { return mXAxis; }
    void setXAxis(const CZelPoint& axis) override { mXAxis = axis; }
    const CZelPoint& getYAxis() const override { return mYAxis; }
    void setYAxis(const CZelPoint& axis) override { mYAxis = axis; }
    double getWidth() const override { return mWidth; }
    void setWidth(double width) override { mWidth = width; }
    double getHeight() const override { return mHeight; }
    void setHeight(double height) override { mHeight = height; }
    bool getCutOut1Used() const override { return mCutOut1Used; }
    void setCutOut1Used(bool used) override { mCutOut1Used = used; }
    CZelColor getCutOut1() const override { return mCutOut1; }
    void setCutOut1(const CZelColor& color) override { mCutOut1 = color; }
    bool getCutOut2Used() const override { return mCutOut2Used; }
    void setCutOut2Used(bool used) override { mCutOut2Used = used; }
    CZelColor getCutOut2() const override { return mCutOut2; }
    void setCutOut2(const CZelColor& color) override { mCutOut2 = color; }
    bool getCutSet() const override { return mCutSet; }
    void setCutSet(bool set) override { mCutSet = set; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::string mURL;
    CZelPoint mOrigin;
    CZelPoint mXAxis{0.0, 0.0, 1.0};
    CZelPoint mYAxis{0.0, 0.0, 1.0};
    double mWidth = 0.0;
    double mHeight = 0.0;
    CZelColor mCutOut1;
    CZelColor mCutOut2;
    bool mCutOut1Used = false;
    bool mCutOut2Used = false;
    bool mCutSet = false;
};

} // namespace OvZel
