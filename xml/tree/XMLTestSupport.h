#pragma once

#include "xml/tree/CXMLTreeReader.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace OrvaneXML::test {

/// Delivers a text in pieces of at most `most` bytes.
class CTextSource final : public XIXMLReadStream {
public:
    explicit CTextSource(std::string text, std::size_t most = ~std::size_t{0})
        : mText(std::move(text)), mMost(most)
    {
    }
    std::uint32_t Read(void* buffer, std::uint32_t size) override
    {
        const std::size_t nb = std::min({std::size_t{size}, mMost, mText.size() - mDone});
        std::memcpy(buffer, mText.data() + mDone, nb);
        mDone += nb;
        return static_cast<std::uint32_t>(nb);
    }

private:
    std::string mText;
    std::size_t mMost;
    std::size_t mDone = 0;
};

class CTextSink final : public XIXMLWriteStream {
public:
    std::uint32_t Write(const void* buffer, std::uint32_t size) override
    {
        text.append(static_cast<const char*>(buffer), size);
        return size;
    }
    std::string text;
};

using CTreePtr = std::unique_ptr<XCXMLTree>;

inline CTreePtr readTree(std::string text, std::size_t most = ~std::size_t{0},
                         IXMLCDataReader* reader = nullptr)
{
    CTextSource source(std::move(text), most);
    return CTreePtr(CXMLTreeReader(reader).ReadTree(&source));
}

inline std::string written(const XCXMLTree& tree)
{
    CTextSink sink;
    tree.Write(&sink);
    return sink.text;
}

/// The text of what an action throws, or "" if it does not.
template <class TAction>
std::string thrownBy(TAction action)
{
    try {
        action();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

/// A provider of fixed bytes that counts how many of its kind are alive.
class CBytes final : public XIXMLData::IXMLCData {
public:
    explicit CBytes(std::string bytes, bool result = true)
        : mBytes(std::move(bytes)), mResult(result)
    {
        ++nbAlive;
    }
    ~CBytes() override { --nbAlive; }
    bool Write(XIXMLWriteStream* stream, void*, XIXMLData*) override
    {
        stream->Write(mBytes.data(), static_cast<std::uint32_t>(mBytes.size()));
        return mResult;
    }
    IXMLCData* Clone() override { return new CBytes(mBytes, mResult); }

    static inline int nbAlive = 0;

private:
    std::string mBytes;
    bool mResult;
};

/// Calls an operation by its place in the Itanium table of an object. The calling convention of a
/// member is that of a function with the object first.
template <class TResult, class... TArguments>
TResult callSlot(void* object, std::size_t slot, TArguments... arguments)
{
    void** table = *static_cast<void***>(object);
    using TFunction = TResult (*)(void*, TArguments...);
    return reinterpret_cast<TFunction>(table[slot])(object, arguments...);
}

} // namespace OrvaneXML::test
