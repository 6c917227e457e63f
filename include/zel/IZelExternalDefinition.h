#pragma once

#include <zel/IZelBasic.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelProperty;

/// A definition that lives in a file of its own: the document keeps where it is and the materials
/// that replace those of the file. Instances name it by its identifier.
///
/// The order of the virtual operations is a promise to compiled clients.
class IZelExternalDefinition : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"EB2EDA6103C74CA894B1A3E7DD00DC69"};

    /// The materials that replace those of the file; never null, good as long as the definition.
    virtual const TZelObjectMgr<IZelProperty>* getProperties() const = 0;
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;
    /// Where the file is, empty in a new one; good until it is set again. The library never opens
    /// it.
    virtual const char* getURL() const = 0;
    /// Null counts as the empty text.
    virtual void setURL(const char* url) = 0;

protected:
    ~IZelExternalDefinition() override = default;
};

} // namespace OvZel
