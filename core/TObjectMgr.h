#pragma once

#include "core/TArrayMgr.h"

#include <memory>

namespace OvZel {

/// A list that is the only owner of its elements.
template <class C, class I>
class TObjectMgr : public TArrayMgr<C, I, std::unique_ptr<C>> {
public:
    explicit TObjectMgr(IZelObjectLink* owner) : TArrayMgr<C, I, std::unique_ptr<C>>(owner) {}
    ~TObjectMgr() override { TObjectMgr::removeAllObjects(); }

    void removeAllObjects() override
    {
        while (this->size() > 0)
            this->removeObject(-1);
    }

protected:
    std::unique_ptr<C> make() override { return std::make_unique<C>(); }
};

} // namespace OvZel
