#pragma once

#include "core/CRange.h"
#include "materials/TTCENode.h"

namespace OvZel {

/// What the two Fresnel nodes have in common, which is all but their type: the operations of I, the
/// file form and the reports.
template <class I>
class TFresnelNode : public TTCENode<I> {
public:
    static constexpr CRange kMinReflection{0.0, 1.0};

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;

    double getMinReflection() const override { return mMinReflection; }
    void setMinReflection(double value) override;
    double getPowerFactor() const override { return mPowerFactor; }
    void setPowerFactor(double value) override { mPowerFactor = value; }

protected:
    explicit TFresnelNode(ITCENode* parent) : TTCENode<I>(parent) {}
    TFresnelNode(ITCENode* parent, const TFresnelNode& source)
        : TTCENode<I>(parent, source), mMinReflection(source.mMinReflection),
          mPowerFactor(source.mPowerFactor)
    {
    }

private:
    double mMinReflection = 0.05;
    double mPowerFactor = 5.0;
};

} // namespace OvZel
