#pragma once

#include "xml/tree/CXMLAttribute.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace OrvaneXML {

/// The attributes of one element, in their order; a name may be there twice.
///
/// Most are read by their names and written again, and nobody sees one as an object. So they are
/// packed at first, names and values one pair behind the other, and become objects, all at once,
/// when somebody asks for one. From then on they stay objects, since somebody may hold them.
class CXMLAttributes {
public:
    bool IsEmpty() const { return mPlace == 0; }
    /// Calls use(name, value) for each.
    template <class TUse>
    void ForEach(TUse use) const;
    std::size_t Count() const
    {
        std::size_t nb = 0;
        ForEach([&nb](const SXMLName*, const char*) { ++nb; });
        return nb;
    }
    /// The value of the first of that name, or null. It is good until that attribute changes.
    const char* ValueOf(const SXMLName* name) const;
    /// The first object, or null.
    CXMLAttribute* First(CXMLStore& store)
    {
        if (IsPacked())
            Unpack(store);
        return FirstObject();
    }

    /// Adds one behind the last, also when the name is there already.
    void Append(CXMLStore& store, const SXMLName* name, std::string_view value);
    CXMLAttribute* AppendObject(CXMLStore& store, const SXMLName* name, std::string_view value);
    /// Packs so many where none were: forEach(use) calls use(name, value) for each.
    template <class TForEach>
    void Fill(CXMLStore& store, std::size_t nb, TForEach forEach);
    /// Sets the value of the first of that name, and is false if there is none.
    bool Replace(CXMLStore& store, const SXMLName* name, std::string_view value);
    /// Removes all of that name. False if there are none.
    bool Remove(CXMLStore& store, const SXMLName* name);
    void Release(CXMLStore& store);

private:
    struct SPair {
        std::uintptr_t nameAndMark;
        const char* value;

        const SXMLName* Name() const
        {
            return reinterpret_cast<const SXMLName*>(nameAndMark & ~kMark);
        }
        bool IsLast() const { return nameAndMark & kMark; }
    };
    static_assert(alignof(SXMLName) > 1 && alignof(SPair) > 1 && alignof(CXMLAttribute) > 1);

    static std::uintptr_t Marked(const void* address)
    {
        return reinterpret_cast<std::uintptr_t>(address) | kMark;
    }
    bool IsPacked() const { return mPlace & kMark; }
    SPair* Pairs() const { return reinterpret_cast<SPair*>(mPlace & ~kMark); }
    CXMLAttribute* FirstObject() const { return reinterpret_cast<CXMLAttribute*>(mPlace); }
    void HoldObject(CXMLAttribute* first) { mPlace = reinterpret_cast<std::uintptr_t>(first); }
    static SPair* NewPairs(CXMLStore& store, std::size_t nb)
    {
        return static_cast<SPair*>(store.pool.Allocate(nb * sizeof(SPair)));
    }
    void RemovePairs(CXMLStore& store, const SXMLName* name);
    SPair* FindPair(const SXMLName* name) const;
    CXMLAttribute* FindObject(const SXMLName* name) const;
    void Unpack(CXMLStore& store);

    static constexpr std::uintptr_t kMark = 1; // of packed ones, and of the last pair

    std::uintptr_t mPlace = 0; // the first pair or the first object
};

template <class TUse>
void CXMLAttributes::ForEach(TUse use) const
{
    if (IsPacked()) {
        const SPair* pair = Pairs();
        for (; !pair->IsLast(); ++pair)
            use(pair->Name(), pair->value);
        use(pair->Name(), pair->value);
        return;
    }
    for (const CXMLAttribute* object = FirstObject(); object; object = object->Next())
        use(object->Name(), object->Value());
}

template <class TForEach>
void CXMLAttributes::Fill(CXMLStore& store, std::size_t nb, TForEach forEach)
{
    if (nb == 0)
        return;
    auto* const pairs = NewPairs(store, nb);
    SPair* next = pairs;
    forEach([&](const SXMLName* name, std::string_view value) {
        *next++ = {reinterpret_cast<std::uintptr_t>(name), store.NewText(value)};
        store.nbBad += name->isBad;
    });
    pairs[nb - 1].nameAndMark |= kMark;
    mPlace = Marked(pairs);
}

} // namespace OrvaneXML
