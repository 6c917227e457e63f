#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelViewBasic.h>

#include <cstdint>

namespace OvZel {

/// A view without perspective: a front view, a plan or an axonometric view. Every value is stored
/// as it comes.
///
/// It has no identifier of its own in the file: each load gives it a new one, and that of its view
/// information persists.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelParallelView : public IZelViewBasic {
public:
    static constexpr CZelUUID sIID{"B76B9ACD18034DD586D5A542E2C5B27F"};

    /// 0 front, 1 plan (in a new view), 2 axonometric. Any other number makes a save fail.
    virtual std::int32_t getType() const = 0;
    virtual void setType(std::int32_t type) = 0;
    /// 2 in a new view.
    virtual std::int32_t getViewFlags() const = 0;
    virtual void setViewFlags(std::int32_t flags) = 0;
    /// 0.0 in a new view.
    virtual double getNorthAngle() const = 0;
    virtual void setNorthAngle(double angle) = 0;
    /// 0.0 in a new view.
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    /// The origin in a new view.
    virtual const CZelPoint& getPosition() const = 0;
    virtual void setPosition(const CZelPoint& point) = 0;
    /// The origin in a new view.
    virtual const CZelPoint& getTarget() const = 0;
    virtual void setTarget(const CZelPoint& point) = 0;
    /// False in a new view.
    virtual bool getSpecialShading() const = 0;
    virtual void setSpecialShading(bool shading) = 0;
    /// 0.0 in a new view. Not saved.
    virtual double getExtraValue() const = 0;
    virtual void setExtraValue(double value) = 0;

protected:
    ~IZelParallelView() override = default;
};

} // namespace OvZel
