#pragma once

#include <zel/CZelColor.h>
#include <zel/CZelPoint.h>

namespace OvZel {

/// The picture of a billboard and its cut-out, part of its entry. Every value is stored as it was
/// given.
class IZelTexture {
public:
    /// Empty in a new texture. Good until its next change.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;
    /// 0, 0, 0 in a new texture.
    virtual const CZelPoint& getOrigin() const = 0;
    virtual void setOrigin(const CZelPoint& origin) = 0;
    /// 0, 0, 1 in a new texture, as the other axis.
    virtual const CZelPoint& getXAxis() const = 0;
    virtual void setXAxis(const CZelPoint& axis) = 0;
    /// 0, 0, 1 in a new texture.
    virtual const CZelPoint& getYAxis() const = 0;
    virtual void setYAxis(const CZelPoint& axis) = 0;
    /// 0.0 in a new texture, as the height.
    virtual double getWidth() const = 0;
    virtual void setWidth(double width) = 0;
    /// 0.0 in a new texture.
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    /// Whether the first cut-out colour counts; false in a new texture. The colour of one that does
    /// not is not saved.
    virtual bool getCutOut1Used() const = 0;
    virtual void setCutOut1Used(bool used) = 0;
    /// Black in a new texture.
    virtual CZelColor getCutOut1() const = 0;
    virtual void setCutOut1(const CZelColor& color) = 0;
    /// As the first one.
    virtual bool getCutOut2Used() const = 0;
    virtual void setCutOut2Used(bool used) = 0;
    /// Black in a new texture.
    virtual CZelColor getCutOut2() const = 0;
    virtual void setCutOut2(const CZelColor& color) = 0;
    /// False in a new texture.
    virtual bool getCutSet() const = 0;
    virtual void setCutSet(bool set) = 0;

protected:
    ~IZelTexture() = default;
};

} // namespace OvZel
