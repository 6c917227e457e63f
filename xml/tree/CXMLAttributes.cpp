#include "xml/tree/CXMLAttributes.h"

#include <cstring>

namespace OrvaneXML {

CXMLAttributes::SPair* CXMLAttributes::FindPair(const SXMLName* name) const
{
    SPair* pair = Pairs();
    while (pair->Name() != name && !pair->IsLast())
        ++pair;
    return pair->Name() == name ? pair : nullptr;
}

CXMLAttribute* CXMLAttributes::FindObject(const SXMLName* name) const
{
    CXMLAttribute* object = FirstObject();
    while (object && object->mName != name)
        object = object->mNext;
    return object;
}

const char* CXMLAttributes::ValueOf(const SXMLName* name) const
{
    if (IsPacked()) {
        const SPair* pair = FindPair(name);
        return pair ? pair->value : nullptr;
    }
    const CXMLAttribute* object = FindObject(name);
    return object ? object->mValue : nullptr;
}

/// The objects take over the values.
void CXMLAttributes::Unpack(CXMLStore& store)
{
    const std::size_t nb = Count();
    CXMLAttribute* first = nullptr;
    for (const SPair* pair = Pairs() + nb; pair != Pairs();) {
        --pair;
        auto* object = store.New<CXMLAttribute>(pair->Name(), pair->value);
        object->mNext = first;
        first = object;
    }
    store.pool.Free(Pairs(), nb * sizeof(SPair));
    HoldObject(first);
}

void CXMLAttributes::Append(CXMLStore& store, const SXMLName* name, std::string_view value)
{
    if (!IsEmpty() && !IsPacked()) {
        AppendObject(store, name, value);
        return;
    }
    // One piece for all, exact each time, so that pieces of each size come back for the next
    // element. It is not worth more, since those who add one after the other are few.
    const std::size_t nb = Count();
    const char* text = store.NewText(value);
    auto* pairs = NewPairs(store, nb + 1);
    if (nb > 0) {
        std::memcpy(pairs, Pairs(), nb * sizeof(SPair));
        store.pool.Free(Pairs(), nb * sizeof(SPair));
        pairs[nb - 1].nameAndMark &= ~kMark;
    }
    pairs[nb] = {Marked(name), text};
    store.nbBad += name->isBad;
    mPlace = Marked(pairs);
}

CXMLAttribute* CXMLAttributes::AppendObject(CXMLStore& store, const SXMLName* name,
                                            std::string_view value)
{
    CXMLAttribute* last = First(store);
    while (last && last->mNext)
        last = last->mNext;
    auto* object = store.New<CXMLAttribute>(name, store.NewText(value));
    store.nbBad += name->isBad;
    if (last)
        last->mNext = object;
    else
        HoldObject(object);
    return object;
}

bool CXMLAttributes::Replace(CXMLStore& store, const SXMLName* name, std::string_view value)
{
    if (IsPacked()) {
        SPair* pair = FindPair(name);
        if (pair)
            store.ReplaceText(pair->value, value);
        return pair;
    }
    CXMLAttribute* object = FindObject(name);
    if (object)
        store.ReplaceText(object->mValue, value);
    return object;
}

void CXMLAttributes::RemovePairs(CXMLStore& store, const SXMLName* name)
{
    const CXMLAttributes before = *this;
    std::size_t nb = 0;
    before.ForEach([&](const SXMLName* each, const char*) { nb += each != name; });
    SPair* pairs = nb > 0 ? NewPairs(store, nb) : nullptr;
    mPlace = nb > 0 ? Marked(pairs) : 0;
    before.ForEach([&](const SXMLName* each, const char* value) {
        if (each != name) {
            *pairs++ = {reinterpret_cast<std::uintptr_t>(each), value};
        } else {
            store.nbBad -= each->isBad;
            store.FreeText(value);
        }
    });
    if (nb > 0)
        pairs[-1].nameAndMark |= kMark;
    store.pool.Free(before.Pairs(), before.Count() * sizeof(SPair));
}

bool CXMLAttributes::Remove(CXMLStore& store, const SXMLName* name)
{
    if (!ValueOf(name))
        return false;
    if (IsPacked()) {
        RemovePairs(store, name);
        return true;
    }
    CXMLAttribute* first = FirstObject();
    for (CXMLAttribute** link = &first; CXMLAttribute* object = *link;) {
        if (object->mName != name) {
            link = &object->mNext;
            continue;
        }
        *link = object->mNext;
        object->Release(store);
    }
    HoldObject(first);
    return true;
}

void CXMLAttributes::Release(CXMLStore& store)
{
    if (IsPacked()) {
        const std::size_t nb = Count();
        ForEach([&store](const SXMLName* name, const char* value) {
            store.nbBad -= name->isBad;
            store.FreeText(value);
        });
        store.pool.Free(Pairs(), nb * sizeof(SPair));
    } else {
        while (CXMLAttribute* object = FirstObject()) {
            HoldObject(object->mNext);
            object->Release(store);
        }
    }
    mPlace = 0;
}

} // namespace OrvaneXML
