#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

/// Identity and origin of a document; the identifier is that of the basic data.
class IZelFileInfo : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"C004284570564264AF20152F86A9D67E"};

    /// Three doubles, zero in a new document; good as long as the object.
    virtual const double* getOrigin() const = 0;
    /// Copies three doubles; null changes nothing.
    virtual void setOrigin(const double* origin) = 0;

protected:
    ~IZelFileInfo() override = default;
};

} // namespace OvZel
