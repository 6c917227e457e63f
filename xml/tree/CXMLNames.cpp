#include "xml/tree/CXMLNames.h"

#include "xml/tree/CXMLStore.h"
#include "xml/tree/characters.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace OrvaneXML {

namespace {

constexpr std::size_t kMaxLength = (std::size_t{1} << 31) - 1;

__extension__ typedef unsigned __int128 TProduct;

/// Both halves of the product count, so that no bits of the name cancel out for every seed.
std::uint64_t mixed(std::uint64_t hash)
{
    const TProduct product = static_cast<TProduct>(hash) * 0x9E3779B97F4A7C15u;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

template <class T>
std::uint64_t wordAt(const char* text)
{
    T word;
    std::memcpy(&word, text, sizeof word);
    return word;
}

/// Up to 8 characters as one number, without a loop; the length tells those apart that overlap.
std::uint64_t lastWord(const char* text, std::size_t nb)
{
    if (nb >= 4)
        return wordAt<std::uint32_t>(text) << 32 | wordAt<std::uint32_t>(text + nb - 4);
    if (nb == 0)
        return 0;
    const auto at = [&](std::size_t i) {
        return std::uint64_t{static_cast<unsigned char>(text[i])};
    };
    return at(0) << 16 | at(nb / 2) << 8 | at(nb - 1);
}

} // namespace

std::uint32_t CXMLNames::HashOf(std::string_view name) const
{
    // The address is a seed that the writer of a file cannot know.
    std::uint64_t hash = reinterpret_cast<std::uintptr_t>(this) ^ name.size();
    const char* text = name.data();
    std::size_t left = name.size();
    for (; left > 8; left -= 8, text += 8)
        hash = mixed(hash ^ wordAt<std::uint64_t>(text));
    return static_cast<std::uint32_t>(mixed(hash ^ lastWord(text, left)));
}

std::size_t CXMLNames::SlotOf(std::string_view name, std::uint32_t hash) const
{
    const std::size_t mask = mTable.size() - 1;
    std::size_t slot = hash & mask;
    while (mTable[slot] && !(mTable[slot]->hash == hash && mTable[slot]->Is(name)))
        slot = (slot + 1) & mask;
    return slot;
}

void CXMLNames::Grow()
{
    std::vector<const SXMLName*> old(std::max<std::size_t>(16, mTable.size() * 2));
    old.swap(mTable);
    for (const SXMLName* name : old)
        if (name)
            mTable[SlotOf(name->view(), name->hash)] = name;
}

const SXMLName* CXMLNames::Add(std::string_view name, std::uint32_t hash)
{
    if (name.size() > kMaxLength)
        throw std::runtime_error("XML name too long");
    const bool isBad = name.empty() || std::any_of(name.begin(), name.end(), isNameEnd);
    void* memory = mStore.pool.Allocate(sizeof(SXMLName) + name.size() + 1);
    auto* record = new (memory) SXMLName{
        &mStore, hash, static_cast<std::uint32_t>(name.size()) & 0x7FFFFFFFu, isBad, nullptr};
    char* text = reinterpret_cast<char*>(record + 1);
    std::copy(name.begin(), name.end(), text);
    text[name.size()] = 0;
    return record;
}

const SXMLName* CXMLNames::Lookup(std::string_view name)
{
    if ((mNbNames + 1) * 2 > mTable.size())
        Grow();
    const std::uint32_t hash = HashOf(name);
    const std::size_t slot = SlotOf(name, hash);
    if (!mTable[slot]) {
        mTable[slot] = Add(name, hash);
        ++mNbNames;
    }
    return mTable[slot];
}

const SXMLName* CXMLNames::Resolve(XCXMLKey key)
{
    if (!key.mText)
        return Intern({});
    const SXMLName* record = RecordOf(key);
    return record->store == &mStore ? record : Intern(record->view());
}

const SXMLName* CXMLNames::Find(XCXMLKey key) const
{
    if (!key.mText)
        return nullptr;
    const SXMLName* record = RecordOf(key);
    if (record->store == &mStore)
        return record;
    return mTable.empty() ? nullptr : mTable[SlotOf(record->view(), HashOf(record->view()))];
}

} // namespace OrvaneXML
