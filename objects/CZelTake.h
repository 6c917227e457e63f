#pragma once

#include "core/TZelFrontierObjLinkRef.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <zel/IZelAnimatedObject.h>

#include <string>

namespace OvZel {

/// One movement of an animated object.
class CZelTake : public TZelFrontierObjLinkRef<IZelAnimatedObject::IZelTake> {
public:
    explicit CZelTake(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}

    std::int32_t getDuration() const override { return mDuration; }
    void setDuration(std::int32_t duration) override { mDuration = duration; }
    std::int32_t getFPS() const override { return mFPS; }
    void setFPS(std::int32_t fps) override { mFPS = fps; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name != nullptr ? std::string(name) : ""; }
    double getZMin() const override { return mZMin; }
    void setZMin(double zMin) override { mZMin = zMin; }
    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    double getZAngle() const override { return mZAngle; }
    void setZAngle(double angle) override { mZAngle = angle; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mDuration = 0;
    std::int32_t mFPS = 0;
    std::string mName;
    double mZMin = 0.0;
    std::int32_t mType = 0;
    double mZAngle = 0.0;
};

} // namespace OvZel
