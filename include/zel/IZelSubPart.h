#pragma once

#include <zel/IZelMultiMaps.h>

namespace OvZel {

/// One of several images of a node, with its size.
///
/// Its list owns it. The kinds of its maps are not checked: getURL gives null for a kind without an
/// address, setURL takes any number, and neither warns. Only kinds 1 to 11 are saved.
class IZelSubPart : public IZelMultiMaps {
public:
    static constexpr CZelUUID sIID{"ACC4A3A5FC0F4459BF083D362B6191F9"};

    /// 1.0 in a new sub-part, like the width; neither is limited.
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    /// As getHeight.
    virtual double getWidth() const = 0;
    virtual void setWidth(double width) = 0;

protected:
    ~IZelSubPart() = default;
};

} // namespace OvZel
