#pragma once

#include "core/TArrayMgr.h"
#include "core/TZelComPtr.h"

namespace OvZel {

/// A list of counted objects; an element that a client keeps outlives its removal.
template <class C, class I>
class TComObjectMgr : public TArrayMgr<C, I, TZelComPtr<C>> {
public:
    explicit TComObjectMgr(IZelObjectLink* owner) : TArrayMgr<C, I, TZelComPtr<C>>(owner) {}
    ~TComObjectMgr() override { TComObjectMgr::removeAllObjects(); }

    void removeAllObjects() override
    {
        while (this->size() > 0)
            this->removeObject(-1);
    }

protected:
    TZelComPtr<C> make() override { return TZelComPtr<C>(new C(this->getBase())); }
};

} // namespace OvZel
