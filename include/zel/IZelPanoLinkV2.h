#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// A way from one node of a panorama to another. Made and owned by the panorama; call AddRef to
/// keep a link longer than the panorama keeps it.
///
/// After a load a link of which an end is no node of the same panorama is gone, without a message.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelPanoLinkV2 : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"DC920CE649BC43CBAD8E8A2CECF4ACF4"};

    /// The identifier of a node, null in a new link.
    virtual const CZelUUID& getStart() const = 0;
    virtual void setStart(const CZelUUID& id) = 0;
    /// The identifier of a node, null in a new link.
    virtual const CZelUUID& getEnd() const = 0;
    virtual void setEnd(const CZelUUID& id) = 0;
    /// The 3D path along which the link runs, null in a new link; nothing checks that it exists.
    virtual const CZelUUID& getPathId() const = 0;
    virtual void setPathId(const CZelUUID& id) = 0;

protected:
    ~IZelPanoLinkV2() override = default;
};

} // namespace OvZel
