#pragma once

#include "core/TZelComPtr.h"

#include <zel/IZelObjectLink.h>
#include <zel/IZelObjectLinkRef.h>

namespace OvZel {

/// The link to an owner, which reads null once the owner is gone.
///
/// An owner that is a small counted object is kept alive by the link. Any other is a whole of which
/// the holder is a part: its control block tells when it is gone.
class COwnerLink {
public:
    explicit COwnerLink(IZelObjectLink* owner);
    ~COwnerLink();
    COwnerLink(const COwnerLink&) = delete;
    COwnerLink& operator=(const COwnerLink&) = delete;

    IZelObjectLink* get() const;
    /// The document's reference object by way of the owner, or null.
    IZelMgrRef* getMgrRef() const;

private:
    IZelObjectLink* mOwner;
    IZelSharedPtrBase* mOwnerBlock = nullptr;
    TZelComPtr<IZelObjectLinkRef> mCounted;
};

} // namespace OvZel
