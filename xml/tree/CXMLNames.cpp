#include "xml/tree/CXMLNames.h"

#include "xml/tree/CXMLStore.h"
#include "xml/tree/characters.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace OrvaneXML {

namespace {

constexpr std::size_t kMaxLength = (std::size_t{1} << 31) - 1;

} // namespace

std::uint32_t CXMLNames::HashOf(std::string_view name) const
{
    // The address is a seed that the writer of a file cannot know.
    auto hash = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(this));
    for (char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x9E3779B97F4A7C15u;
    return static_cast<std::uint32_t>(hash >> 32);
}

std::size_t CXMLNames::SlotOf(std::string_view name, std::uint32_t hash) const
{
    const std::size_t mask = mTable.size() - 1;
    std::size_t slot = hash & mask;
    while (mTable[slot] && !(mTable[slot]->hash == hash && mTable[slot]->view() == name))
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
    auto* record = new (memory)
        SXMLName{&mStore, hash, static_cast<std::uint32_t>(name.size()) & 0x7FFFFFFFu, isBad};
    char* text = reinterpret_cast<char*>(record + 1);
    std::copy(name.begin(), name.end(), text);
    text[name.size()] = 0;
    return record;
}

const SXMLName* CXMLNames::Intern(std::string_view name)
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
