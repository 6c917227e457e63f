#pragma once

#include <zel/IUnknown.h>

namespace OvZel {

class IZelBasicData;
class IZelObjectLink;

/// The base of every counted object of the model.
///
/// Objects come from the library and die with their last reference; clients never delete one.
class IZelBasic : public IUnknown {
public:
    static constexpr CZelUUID sIID{"DC74F41BE7D545E8A5D0BCF81E12FA86"};

protected:
    virtual ~IZelBasic() = default;

public:
    /// Owner and document of the object; never null, good as long as the object.
    virtual IZelObjectLink* getObjectLink() = 0;
    /// Identifier, name and client data; never null, good as long as the object.
    virtual IZelBasicData* getBasicData() = 0;
};

} // namespace OvZel
