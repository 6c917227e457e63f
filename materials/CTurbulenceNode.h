#pragma once

#include "core/CTable.h"
#include "materials/TTCENode.h"

#include <zel/ITurbulenceNode.h>

namespace OvZel {

/// A turbulence pattern.
class CTurbulenceNode : public TTCENode<ITurbulenceNode> {
public:
    explicit CTurbulenceNode(ITCENode* parent) : TTCENode(parent) {}
    CTurbulenceNode(ITCENode* parent, const CTurbulenceNode& source);

    eNodeType getNodeType() const override { return eTurbulenceNode; }
    ITurbulenceNode* asTurbulenceNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;

    const CZelPoint& getOrigin() const override { return mValues.origin; }
    void setOrigin(const CZelPoint& vector) override { mValues.origin = vector; }
    const CZelPoint& getAmplitude() const override { return mValues.amplitude; }
    void setAmplitude(const CZelPoint& vector) override { mValues.amplitude = vector; }
    const CZelPoint& getDirection() const override { return mValues.direction; }
    void setDirection(const CZelPoint& vector) override { mValues.direction = vector; }
    double getSize() const override { return mValues.size; }
    void setSize(double value) override { mValues.size = value; }
    const ITable* getTable() const override { return mTable.get(); }
    ITable* getTable() override { return mTable.get(); }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        CZelPoint origin;
        CZelPoint amplitude;
        CZelPoint direction{0.0, 0.0, 1.0};
        double size = 0.0;
    };

    CValues mValues;
    TZelComPtr<CTable> mTable = made<CTable>();
};

} // namespace OvZel
