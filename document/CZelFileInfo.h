#pragma once

#include "core/TZelCOMObjLinkRef.h"

#include <zel/IZelFileInfo.h>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;

/// Identity and origin of a document.
class CZelFileInfo : public TZelCOMObjLinkRef<IZelFileInfo> {
public:
    explicit CZelFileInfo(IZelObjectLinkRef* owner) : TZelCOMObjLinkRef(owner) {}

    const double* getOrigin() const override { return mOrigin; }
    void setOrigin(const double* origin) override;

    /// Writes into "File.Info", which may hold the values of a former save.
    void addTo(CZelXMLAdd out) const;
    /// Reads "File.Info"; the origin passes through the read transform.
    void getFrom(const CZelXMLGet& in);

private:
    double mOrigin[3] = {0.0, 0.0, 0.0};
};

} // namespace OvZel
