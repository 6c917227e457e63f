#pragma once

#include "core/CSelfBlock.h"
#include "core/TZelFrontier.h"
#include "core/query.h"

#include <zel/IZelBasic.h>
#include <zel/IZelObjectLink.h>

namespace OvZel {

/// The base of every counted object: its control block and what is reached through it.
///
/// Body is the frontier of the interface, or a class on it that overrides an operation whose name a
/// facet also has, with another result.
template <class I, const CZelUUID* IID, class Body = TZelFrontier<I>>
class TZelCOMBase : public Body, public IZelObjectLink {
public:
    using CBlockObject = TZelCOMBase;

    ~TZelCOMBase() override = default;

    std::int32_t QueryInterface(const CZelUUID& iid, void** out) override
    {
        return query(static_cast<I*>(this), IZelBasic::sIID, iid, out);
    }
    std::uint32_t AddRef() override { return mSelf.addRef(); }
    std::uint32_t Release() override { return mSelf.release(); }

    IZelObjectLink* getObjectLink() override { return this; }
    IZelSharedPtrBase* getCOMWeakPtr() const override { return mSelf.get(); }
    IZelSharedPtrBase* getSelfWeakPtr() const override { return mSelf.get(); }
    TZelSharedPtr<TZelCOMBase>* getBlock() const { return mSelf.get(); }

protected:
    TZelCOMBase() : mSelf(this) {}

private:
    CSelfBlock<TZelCOMBase> mSelf;
};

} // namespace OvZel
