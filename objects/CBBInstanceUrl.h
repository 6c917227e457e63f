#pragma once

#include "core/TZelFrontier.h"
#include "objects/CClassData.h"

#include <zel/IZelBBObjectInstance.h>

namespace OvZel {

/// The address operations of a billboard instance.
///
/// The object from a file that it also is has operations of the same names, on an element with
/// another spelling, so each is overridden in a class on its base alone.
class CBBInstanceUrl : public TZelFrontier<IZelBBObjectInstance> {
public:
    const char* getUrl() const override { return privateData().getText("URL"); }
    void setUrl(const char* url) override { privateData().setText("URL", url); }

    virtual CClassData& privateData() const = 0;

protected:
    ~CBBInstanceUrl() = default;
};

} // namespace OvZel
