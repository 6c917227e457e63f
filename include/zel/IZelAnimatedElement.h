#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelInterpolatedValue.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// What is animated of one object of the scene. Made and owned by its scenario.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelAnimatedElement : public IZelXML {
public:
    static constexpr CZelUUID sIID{"FCA532B10018429AADDE01FAA8A5402C"};

    /// The object that is animated, null in a new element; nothing checks that it exists.
    virtual const CZelUUID& getId() const = 0;
    virtual void setId(const CZelUUID& id) = 0;
    /// The kind of that object: 1 sequence, 2 light, 3 heliodon, 4 object, 5 property, 6 mapping
    /// node. 0 in a new element, which cannot be saved before a kind is set.
    virtual std::int32_t getElementType() const = 0;
    virtual void setElementType(std::int32_t type) = 0;
    /// Owned by the element, never null.
    virtual const TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() const = 0;
    virtual TZelObjectMgr<IZelInterpolatedValue>* getInterpolatedValues() = 0;

protected:
    ~IZelAnimatedElement() = default;
};

} // namespace OvZel
