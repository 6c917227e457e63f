#pragma once

#include "core/TZelFrontierObjLinkRef.h"

#include <zel/IZelScenarioTimeGuide.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// A mark on the time line of a scenario.
class CZelScenarioTimeGuide : public TZelFrontierObjLinkRef<IZelScenarioTimeGuide> {
public:
    explicit CZelScenarioTimeGuide(IZelObjectLinkRef* owner) : TZelFrontierObjLinkRef(owner) {}

    std::int32_t getTime() const override { return mTime; }
    void setTime(std::int32_t time) override { mTime = time; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mTime = 0;
};

} // namespace OvZel
