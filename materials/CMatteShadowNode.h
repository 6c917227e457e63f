#pragma once

#include "core/CRange.h"
#include "materials/TTCENode.h"

#include <zel/IMatteShadowNode.h>

namespace OvZel {

/// A surface that only shows shadows.
class CMatteShadowNode : public TTCENode<IMatteShadowNode> {
public:
    static constexpr CRange kTransparency{0.0, 1.0};

    explicit CMatteShadowNode(ITCENode* parent) : TTCENode(parent) {}
    CMatteShadowNode(ITCENode* parent, const CMatteShadowNode& source)
        : TTCENode(parent, source), mValues(source.mValues)
    {
    }

    eNodeType getNodeType() const override { return eMatteShadowNode; }
    IMatteShadowNode* asMatteShadowNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;

    double getTransparency() const override { return mValues.transparency; }
    void setTransparency(double value) override
    {
        mValues.transparency = kTransparency.clip(value);
    }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        double transparency = 0.0;
    };

    CValues mValues;
};

} // namespace OvZel
