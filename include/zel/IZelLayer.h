#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// A group of instances that are shown or hidden together.
///
/// A layer is all in its basic data: identifier, name, the user interface's number. Instances and
/// views name it by its identifier; those that do are not told when it is removed.
class IZelLayer : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"44B3C0649EB84B6CB315019357CFCA06"};

protected:
    ~IZelLayer() override = default;
};

} // namespace OvZel
