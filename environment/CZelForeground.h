#pragma once

#include "xml/TZelXMLFrontierObjLink.h"

#include <zel/IZelForeground.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// The picture in front of the scene; the element "Foregroung" (sic).
class CZelForeground : public TZelXMLFrontierObjLink<IZelForeground> {
public:
    explicit CZelForeground(IZelObjectLink* owner) : TZelXMLFrontierObjLink(owner) {}

    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? url : ""; }
    double getPositionX() const override { return mPositionX; }
    void setPositionX(double x) override { mPositionX = x; }
    double getPositionY() const override { return mPositionY; }
    void setPositionY(double y) override { mPositionY = y; }
    double getSizeX() const override { return mSizeX; }
    void setSizeX(double size) override { mSizeX = size; }
    double getSizeY() const override { return mSizeY; }
    void setSizeY(double size) override { mSizeY = size; }
    const CZelUUID& getImageId() const override { return mImageId; }
    void setImageId(const CZelUUID& id) override { mImageId = id; }
    double getIntensity() const override { return mIntensity; }
    void setIntensity(double intensity) override { mIntensity = intensity; }
    bool getKeepProportions() const override { return mKeepProportions; }
    void setKeepProportions(bool keep) override { mKeepProportions = keep; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::string mURL;
    double mPositionX = 0.0;
    double mPositionY = 0.0;
    double mSizeX = 1.0;
    double mSizeY = 1.0;
    CZelUUID mImageId;
    double mIntensity = 0.5;
    bool mKeepProportions = true;
};

} // namespace OvZel
