#pragma once

#include "core/CSelfBlock.h"
#include "core/CZelMgrRef.h"
#include "core/TZelFrontier.h"

#include <zel/IZelObjectLink.h>

namespace OvZel {

/// The base of the parts of an owner: a control block for links and holders inside the library, but
/// no count that a client could reach.
template <class I>
class TZelBase : public TZelFrontier<I>, public IZelObjectLink {
public:
    using CBlockObject = TZelBase;

    virtual ~TZelBase() = default;

    IZelObjectLink* getObjectLink() { return this; }
    IZelMgrRef* getMgrRef() const override
    {
        IZelObjectLink* owner = this->getOwnerLink();
        return owner != nullptr ? owner->getMgrRef() : nullptr;
    }
    IZelSharedPtrBase* getCOMWeakPtr() const override { return nullBlock(); }
    IZelSharedPtrBase* getSelfWeakPtr() const override { return mSelf.get(); }
    TZelSharedPtr<TZelBase>* getBlock() const { return mSelf.get(); }

protected:
    TZelBase() : mSelf(this) {}

    /// Where warnings go; null without a document.
    CZelMgrRef* mgrRef() const { return CZelMgrRef::from(getMgrRef()); }
    void warn(const char* text) const
    {
        if (CZelMgrRef* target = mgrRef())
            target->warning(text);
    }

private:
    CSelfBlock<TZelBase> mSelf;
};

} // namespace OvZel
