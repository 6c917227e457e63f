#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelBasic.h>

namespace OvZel {

/// A viewpoint of a panorama. Made and owned by it; call AddRef to keep a node longer than the
/// panorama keeps it.
///
/// A node whose element lacks its name or its position is a new one after a load; nothing warns.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelPanoNodeV2 : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"C98074929E694ED5968AD99AECB8012B"};

    /// The origin in a new node.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& point) = 0;
    /// (0, 0, 1) in a new node.
    virtual const CZelPoint& getDirection() const = 0;
    virtual void setDirection(const CZelPoint& direction) = 0;

protected:
    ~IZelPanoNodeV2() override = default;
};

} // namespace OvZel
