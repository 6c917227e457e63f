#pragma once

#include "core/CObjectPool.h"
#include "core/TComObjectMgr.h"

namespace OvZel {

/// A list of counted objects that a scene has tens of thousands of, of a class on CPooled.
template <class C, class I>
class TPooledMgr final : public TComObjectMgr<C, I> {
    static_assert(alignof(C) <= 8, "the pool aligns no further");

public:
    using TComObjectMgr<C, I>::TComObjectMgr;

    void removeAllObjects() override
    {
        TComObjectMgr<C, I>::removeAllObjects();
        mPool.letGo();
    }

protected:
    TZelComPtr<C> make() override { return TZelComPtr<C>(new (mPool) C(this->getBase())); }

private:
    CObjectPool mPool{sizeof(C)};
};

} // namespace OvZel
