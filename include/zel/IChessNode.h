#pragma once

#include <zel/CZelPoint.h>

#include <cstdint>

namespace OvZel {

class ITable;
class ITCENode;

/// The node of a checker pattern in space that blends two sub-trees: its first and second child. A
/// tree in which it lacks one of them cannot be saved.
///
/// Part of its node, good as long as that. Values are stored as they are given; one thread at a
/// time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IChessNode {
public:
    /// The tree face of the same node.
    virtual const ITCENode* getTCENode() const = 0;
    virtual ITCENode* getTCENode() = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& vector) = 0;
    /// All three axes are 0, 0, 1 in a new node: set them before the pattern is used.
    virtual const CZelPoint& getXAxis() const = 0;
    virtual void setXAxis(const CZelPoint& vector) = 0;
    /// 0, 0, 1 in a new node.
    virtual const CZelPoint& getYAxis() const = 0;
    virtual void setYAxis(const CZelPoint& vector) = 0;
    /// 0, 0, 1 in a new node.
    virtual const CZelPoint& getZAxis() const = 0;
    virtual void setZAxis(const CZelPoint& vector) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getSize() const = 0;
    virtual void setSize(const CZelPoint& vector) = 0;
    /// 0, 0, 0 in a new node.
    virtual const CZelPoint& getProportion() const = 0;
    virtual void setProportion(const CZelPoint& vector) = 0;
    /// False in a new node.
    virtual bool getChecker() const = 0;
    virtual void setChecker(bool flag) = 0;
    /// False in a new node.
    virtual bool getSmooth() const = 0;
    virtual void setSmooth(bool flag) = 0;
    /// 0 cylinder, 1 sphere, 2 cube; 2 in a new node. Any number is stored, but one without a
    /// label fails the save.
    virtual std::int32_t getGeometry() const = 0;
    virtual void setGeometry(std::int32_t value) = 0;
    /// Three tables for the renderer, empty in a new node. Parts of the node: a pointer is good as
    /// long as the node unless a reference is kept.
    virtual const ITable* getTable1() const = 0;
    virtual ITable* getTable1() = 0;
    /// As getTable1.
    virtual const ITable* getTable2() const = 0;
    virtual ITable* getTable2() = 0;
    /// As getTable1.
    virtual const ITable* getTable3() const = 0;
    virtual ITable* getTable3() = 0;

protected:
    ~IChessNode() = default;
};

} // namespace OvZel
