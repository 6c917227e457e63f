#pragma once

#include <zel/IZelBasic.h>
#include <zel/IZelBasicData.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>
#include <map>
#include <string>
#include <type_traits>
#include <utility>

namespace OvZel {

/// The name by which objects of two documents are paired, byte for byte. The empty one is a name.
struct CNameOf {
    template <class I>
    std::string operator()(I& object) const
    {
        return object.getBasicData()->getName();
    }
};

struct CIdOf {
    template <class I>
    CZelUUID operator()(I& object) const
    {
        if constexpr (std::is_base_of_v<IZelBasic, I>)
            return *object.getBasicData()->getId();
        else
            return object.getId();
    }
};

/// Finds the first object of a list that has a key, as a walk from index 0 would.
///
/// Sees the objects that were appended since the last call. The list must outlive the index, and
/// may only grow at its end; forget must be called when the key of an object has changed.
template <class I, class KeyOf>
class TFirstIndex {
public:
    using CKey = decltype(KeyOf()(std::declval<I&>()));

    explicit TFirstIndex(TZelObjectMgr<I>& list) : mList(list) {}

    /// Null when no object has the key.
    I* find(const CKey& key)
    {
        for (; mNbSeen < mList.getNbObjects(); ++mNbSeen)
            mPlaces.emplace(KeyOf()(*mList.getZelObject(mNbSeen)), mNbSeen);
        const auto found = mPlaces.find(key);
        return found != mPlaces.end() ? mList.getZelObject(found->second) : nullptr;
    }

    void forget()
    {
        mPlaces.clear();
        mNbSeen = 0;
    }

private:
    TZelObjectMgr<I>& mList;
    std::map<CKey, std::int32_t> mPlaces;
    std::int32_t mNbSeen = 0;
};

template <class I>
using TNameIndex = TFirstIndex<I, CNameOf>;
template <class I>
using TIdIndex = TFirstIndex<I, CIdOf>;

} // namespace OvZel
