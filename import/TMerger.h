#pragma once

#include "import/TFirstIndex.h"
#include "import/copyThroughXML.h"

namespace OvZel {

/// Copies objects into a list of the destination: over the first object with the same key, else to
/// a new one behind the last. An object that a copy has added counts for the copies after it.
template <class I, class KeyOf>
class TMerger {
public:
    explicit TMerger(TZelObjectMgr<I>& destination) : mList(destination), mPartners(destination) {}

    TCopy<I> merge(I& source)
    {
        const auto key = KeyOf()(source);
        I* partner = mPartners.find(key);
        if (partner == nullptr)
            return copyToNew(source, mList);
        const TCopy<I> copy = copyThroughXML(source, [&] { return partner; });
        if (KeyOf()(*partner) != key)
            mPartners.forget(); // a copy that failed half-way
        return copy;
    }

private:
    TZelObjectMgr<I>& mList;
    TFirstIndex<I, KeyOf> mPartners;
};

/// Merges a whole list by name. done(copy, source) is called for every copy that is complete.
template <class I, class Done>
void mergeByName(TZelObjectMgr<I>& destination, TZelObjectMgr<I>& source, Done&& done)
{
    TMerger<I, CNameOf> merger(destination);
    const std::int32_t count = source.getNbObjects();
    for (std::int32_t i = 0; i < count; ++i) {
        I& object = *source.getZelObject(i);
        if (const TCopy<I> copy = merger.merge(object); copy.isComplete)
            done(*copy.object, object);
    }
}

} // namespace OvZel
