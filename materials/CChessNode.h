#pragma once

#include "core/CTable.h"
#include "materials/TTCENode.h"

#include <zel/IChessNode.h>

namespace OvZel {

/// A checker pattern in space over two sub-trees.
class CChessNode : public TTCENode<IChessNode> {
public:
    explicit CChessNode(ITCENode* parent) : TTCENode(parent) {}
    CChessNode(ITCENode* parent, const CChessNode& source);

    eNodeType getNodeType() const override { return eChessNode; }
    IChessNode* asChessNode() override { return this; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    XIXMLElement* addChildElement(const CZelXMLAdd& out, std::int32_t index) const override;
    XIXMLElement* getChildElement(const CZelXMLGet& in, XIXMLElement* previous) const override;

    const CZelPoint& getOrigin() const override { return mValues.origin; }
    void setOrigin(const CZelPoint& vector) override { mValues.origin = vector; }
    const CZelPoint& getXAxis() const override { return mValues.xAxis; }
    void setXAxis(const CZelPoint& vector) override { mValues.xAxis = vector; }
    const CZelPoint& getYAxis() const override { return mValues.yAxis; }
    void setYAxis(const CZelPoint& vector) override { mValues.yAxis = vector; }
    const CZelPoint& getZAxis() const override { return mValues.zAxis; }
    void setZAxis(const CZelPoint& vector) override { mValues.zAxis = vector; }
    const CZelPoint& getSize() const override { return mValues.size; }
    void setSize(const CZelPoint& vector) override { mValues.size = vector; }
    const CZelPoint& getProportion() const override { return mValues.proportion; }
    void setProportion(const CZelPoint& vector) override { mValues.proportion = vector; }
    bool getChecker() const override { return mValues.checker; }
    void setChecker(bool flag) override { mValues.checker = flag; }
    bool getSmooth() const override { return mValues.smooth; }
    void setSmooth(bool flag) override { mValues.smooth = flag; }
    std::int32_t getGeometry() const override { return mValues.geometry; }
    void setGeometry(std::int32_t value) override { mValues.geometry = value; }
    const ITable* getTable1() const override { return mTable1.get(); }
    ITable* getTable1() override { return mTable1.get(); }
    const ITable* getTable2() const override { return mTable2.get(); }
    ITable* getTable2() override { return mTable2.get(); }
    const ITable* getTable3() const override { return mTable3.get(); }
    ITable* getTable3() override { return mTable3.get(); }

private:
    /// What a copy takes over as it stands.
    struct CValues {
        CZelPoint origin;
        CZelPoint xAxis{0.0, 0.0, 1.0};
        CZelPoint yAxis{0.0, 0.0, 1.0};
        CZelPoint zAxis{0.0, 0.0, 1.0};
        CZelPoint size;
        CZelPoint proportion;
        bool checker = false;
        bool smooth = false;
        std::int32_t geometry = 2;
    };

    CValues mValues;
    TZelComPtr<CTable> mTable1 = made<CTable>();
    TZelComPtr<CTable> mTable2 = made<CTable>();
    TZelComPtr<CTable> mTable3 = made<CTable>();
};

} // namespace OvZel
