#pragma once

#include "core/TArrayMgr.h"
#include "core/TZelStrongPtr.h"

namespace OvZel {

/// A list that holds its elements through their control blocks.
template <class C, class I>
class TObject2Mgr : public TArrayMgr<C, I, TZelStrongPtr<C>> {
public:
    explicit TObject2Mgr(IZelObjectLink* owner) : TArrayMgr<C, I, TZelStrongPtr<C>>(owner) {}
    ~TObject2Mgr() override { TObject2Mgr::removeAllObjects(); }

    /// From the first to the last; the list is empty before the first of them goes.
    void removeAllObjects() override
    {
        std::vector<TZelStrongPtr<C>> gone;
        gone.swap(this->mElements);
        for (TZelStrongPtr<C>& element : gone)
            element.reset();
    }

protected:
    TZelStrongPtr<C> make() override { return TZelStrongPtr<C>(new C(this->getBase())); }
};

} // namespace OvZel
