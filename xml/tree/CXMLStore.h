#pragma once

#include "xml/tree/CXMLNames.h"
#include "xml/tree/CXMLNodePool.h"
#include "xml/tree/commonTexts.h"
#include "xml/tree/lanes.h"
#include "xml/tree/shortBytes.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace OrvaneXML {

class CXMLCDataNode;
class CXMLElement;

/// What the nodes of one tree share. Every node finds it through the name of an element.
struct CXMLStore {
    CXMLStore() = default;
    CXMLStore(const CXMLStore&) = delete;
    CXMLStore& operator=(const CXMLStore&) = delete;

    CXMLNodePool pool;
    CXMLNames names{*this};
    CXMLElement* root = nullptr;
    CXMLCDataNode* sections =
        nullptr;           ///< all CDATA nodes, since their providers are not pool memory
    std::size_t nbBad = 0; ///< names, comments and instructions that XML cannot hold
    /// The first section of the element that is being read, when it is known. Finding it among the
    /// children again for each section would let a small file keep the reader busy for minutes.
    CXMLCDataNode* knownSection = nullptr;
    /// The element whose children the names know, until any child list or name changes.
    const CXMLElement* indexed = nullptr;
    std::uint64_t indexTime = 0;

    template <class T, class... TArguments>
    T* New(TArguments&&... arguments)
    {
        return new (pool.Allocate(sizeof(T))) T(std::forward<TArguments>(arguments)...);
    }

    /// Texts are NUL-terminated and aligned to 2. Those that every scene has a thousand times take
    /// no memory.
    const char* NewText(std::string_view text)
    {
        if (const char* common = commonText(text))
            return common;
        char* copy = pool.AllocateText(text.size() + 1);
        copyBytes(copy, text.data(), text.size());
        copy[text.size()] = 0;
        return copy;
    }
    void FreeText(const char* text)
    {
        if (!isCommonText(text))
            pool.FreeText(const_cast<char*>(text), LengthOf(text) + 1);
    }
    /// Of a text of a tree, from the beginning of which 16 bytes can be read.
    static std::size_t LengthOf(const char* text)
    {
        for (std::size_t at = 0; at < 16; at += 8)
            if (const std::uint64_t ends = lanesOf(lanesAt(text + at), 0))
                return at + static_cast<std::size_t>(firstLane(ends));
        return 16 + std::strlen(text + 16);
    }
    void ReplaceText(const char*& text, std::string_view with)
    {
        const char* copy = NewText(with); // first, since `with` may be a part of the old text
        FreeText(text);
        text = copy;
    }
};

/// Null counts as the empty text everywhere.
inline const char* textOrEmpty(const char* text)
{
    return text ? text : "";
}

} // namespace OrvaneXML
