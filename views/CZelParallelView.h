#pragma once

#include "views/TZelViewBasic.h"

#include <zel/IZelParallelView.h>

namespace OvZel {

/// A front view, a plan or an axonometric view.
class CZelParallelView : public TZelViewBasic<IZelParallelView> {
public:
    explicit CZelParallelView(IZelObjectLinkRef* owner) : TZelViewBasic(owner) {}

    std::int32_t getType() const override { return mType; }
    void setType(std::int32_t type) override { mType = type; }
    std::int32_t getViewFlags() const override { return mViewFlags; }
    void setViewFlags(std::int32_t flags) override { mViewFlags = flags; }
    double getNorthAngle() const override { return mNorthAngle; }
    void setNorthAngle(double angle) override { mNorthAngle = angle; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    const CZelPoint& getPosition() const override { return mPosition; }
    void setPosition(const CZelPoint& point) override { mPosition = point; }
    const CZelPoint& getTarget() const override { return mTarget; }
    void setTarget(const CZelPoint& point) override { mTarget = point; }
    bool getSpecialShading() const override { return mSpecialShading; }
    void setSpecialShading(bool shading) override { mSpecialShading = shading; }
    double getExtraValue() const override { return mExtraValue; }
    void setExtraValue(double value) override { mExtraValue = value; }

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::int32_t mType = 1;
    std::int32_t mViewFlags = 2;
    double mNorthAngle = 0.0;
    double mSize = 0.0;
    CZelPoint mPosition;
    CZelPoint mTarget;
    bool mSpecialShading = false;
    double mExtraValue = 0.0; // has no place in the file
};

} // namespace OvZel
