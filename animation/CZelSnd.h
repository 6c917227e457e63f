#pragma once

#include "core/TZelFrontierObjLinkRef.h"

#include <zel/IZelSnd.h>

#include <string>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// A sound of a scenario.
class CZelSnd : public TZelFrontierObjLinkRef<IZelSnd> {
public:
    explicit CZelSnd(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}

    const CZelUUID& getId() const override { return mId; }
    void setId(const CZelUUID& id) override { mId = id; }
    const char* getURL() const override { return mURL.c_str(); }
    void setURL(const char* url) override { mURL = url != nullptr ? std::string(url) : ""; }
    std::int32_t getStartFrame() const override { return mStartFrame; }
    void setStartFrame(std::int32_t frame) override { mStartFrame = frame; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mStartFrame = 0;
    CZelUUID mId;
    std::string mURL;
};

} // namespace OvZel
