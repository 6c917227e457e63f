#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelPanoLinkV2.h>
#include <zel/IZelPanoNodeV2.h>
#include <zel/IZelViewBasic.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// A walk through the scene by fixed viewpoints: a graph of nodes and links. A new one is named
/// "PanoramaV2". Every value is stored as it comes.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelPanoramaV2 : public IZelViewBasic {
public:
    static constexpr CZelUUID sIID{"E746CA7862344968A0DACF66003DFDA7"};

    /// Owned by the panorama, never null.
    virtual const TZelObjectMgr<IZelPanoLinkV2>* getLinks() const = 0;
    virtual TZelObjectMgr<IZelPanoLinkV2>* getLinks() = 0;
    /// Owned by the panorama, never null.
    virtual const TZelObjectMgr<IZelPanoNodeV2>* getNodes() const = 0;
    virtual TZelObjectMgr<IZelPanoNodeV2>* getNodes() = 0;
    /// Null in a new panorama; nothing checks that the node exists.
    virtual const CZelUUID& getStartNode() const = 0;
    virtual void setStartNode(const CZelUUID& id) = 0;
    /// (0, 0, 1) in a new panorama.
    virtual const CZelPoint& getDirection() const = 0;
    virtual void setDirection(const CZelPoint& direction) = 0;
    /// In degrees, 50.0 in a new panorama; nothing clips it.
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    /// Null in a new panorama; nothing checks that the node exists.
    virtual const CZelUUID& getCurrentNode() const = 0;
    virtual void setCurrentNode(const CZelUUID& id) = 0;
    /// 0 in a new panorama.
    virtual std::int32_t getFlags() const = 0;
    virtual void setFlags(std::int32_t flags) = 0;
    /// Identifiers of parallel views, which nothing resolves. Owned by the panorama, never null.
    virtual const TZelObjectMgr<CZelUUID>* getParallelViews() const = 0;
    virtual TZelObjectMgr<CZelUUID>* getParallelViews() = 0;
    /// (0, 0, 1) in a new panorama.
    virtual const CZelPoint& getCurrentDirection() const = 0;
    virtual void setCurrentDirection(const CZelPoint& direction) = 0;

protected:
    ~IZelPanoramaV2() override = default;
};

} // namespace OvZel
