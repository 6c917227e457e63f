#pragma once

#include "core/TObjectMgrBase.h"
#include "core/elementId.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>
#include <vector>

namespace OvZel {

/// The list behind the managers of objects. Slot is the smart pointer by which an element is held,
/// and all that the kinds of managers differ in.
template <class C, class I, class Slot>
class TArrayMgr : public TObjectMgrBase<I> {
public:
    const CZelUUID* getObjectIID() const override { return elementId<I>(); }
    std::int32_t getNbObjects() const override { return size(); }
    void removeObject(std::int32_t index) override;
    void moveObject(std::int32_t from, std::int32_t to) override;
    bool reserve(std::int32_t count) override;
    /// Keeps the memory when making the smaller list fails.
    void releaseSpareRoom() noexcept { mElements.shrink_to_fit(); }
    I* getZelObject(std::int32_t index) override;
    I* newZelObject(std::int32_t index) override { return insert(index); }

    std::int32_t size() const { return static_cast<std::int32_t>(mElements.size()); }
    /// Without a check; the index is good.
    C* at(std::int32_t index) const { return object(mElements[static_cast<std::size_t>(index)]); }
    /// A new element behind the last; null after a warning.
    C* append() { return insert(-1); }
    /// Removes those that the test is true for, in one pass.
    template <class Test>
    void removeIf(Test test);

protected:
    using TObjectMgrBase<I>::TObjectMgrBase;

    /// A new element with its owner.
    virtual Slot make() = 0;

    static C* object(const Slot& slot)
    {
        if constexpr (requires { slot.getPtr(); })
            return slot.getPtr();
        else
            return slot.get();
    }

    std::vector<Slot> mElements;

private:
    C* insert(std::int32_t index);
};

template <class C, class I, class Slot>
void TArrayMgr<C, I, Slot>::removeObject(std::int32_t index)
{
    if (index == -1)
        index = size() - 1;
    if (!this->isBelow(index, mElements.size()))
        return this->warning("removeObject: Bad index value");
    // The element dies behind the change: its destructor may run client code that looks here.
    const auto place = mElements.begin() + index;
    const Slot gone = std::move(*place);
    mElements.erase(place);
}

template <class C, class I, class Slot>
template <class Test>
void TArrayMgr<C, I, Slot>::removeIf(Test test)
{
    const auto end = std::stable_partition(mElements.begin(), mElements.end(),
                                           [&](const Slot& slot) { return !test(*object(slot)); });
    // As above, the elements die behind the change.
    const std::vector<Slot> gone(std::make_move_iterator(end),
                                 std::make_move_iterator(mElements.end()));
    mElements.erase(end, mElements.end());
}

template <class C, class I, class Slot>
void TArrayMgr<C, I, Slot>::moveObject(std::int32_t from, std::int32_t to)
{
    if (from == to)
        return;
    if (!this->isBelow(from, mElements.size()) || !this->isBelow(to, mElements.size()))
        return this->warning("moveObject: Bad index value");
    const auto first = mElements.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
}

template <class C, class I, class Slot>
bool TArrayMgr<C, I, Slot>::reserve(std::int32_t count)
{
    if (count < 0)
        return false;
    try {
        mElements.reserve(static_cast<std::size_t>(count));
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

template <class C, class I, class Slot>
I* TArrayMgr<C, I, Slot>::getZelObject(std::int32_t index)
{
    if (this->isBelow(index, mElements.size()))
        return at(index);
    this->warning("getZelObject: Bad index value");
    return nullptr;
}

template <class C, class I, class Slot>
C* TArrayMgr<C, I, Slot>::insert(std::int32_t index)
{
    if (index == -1)
        index = size();
    if (!this->isBelow(index, mElements.size() + 1)) {
        this->warning("newZelObject: Bad index value");
        return nullptr;
    }
    try {
        return object(*mElements.insert(mElements.begin() + index, make()));
    } catch (...) {
        this->warning("newZelObject: Can't allocate object");
        return nullptr;
    }
}

} // namespace OvZel
