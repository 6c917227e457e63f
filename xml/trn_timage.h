#pragma once

#include "core/OvThrow.h"
#include "xml/trn_reference.h"

#include <cstdint>
#include <memory>
#include <new>

namespace OvZel {

using trn_float = float;

/// Four channels, in this order in memory.
template <class T>
struct trn_generic_RGBA {
    T red, green, blue, alpha;

    friend bool operator==(const trn_generic_RGBA&, const trn_generic_RGBA&) = default;
};

/// The common currency of the conversions.
struct trn_RGBAn8 {
    std::uint8_t red, green, blue, alpha;
};

/// A bitmap: rows from the top, with nothing between them.
template <class T>
class trn_timage : public trn_reference {
public:
    static constexpr std::uint64_t kMaxPixels = 268'435'456;

    trn_timage() = default;
    /// A view of pixels that belong to another, who keeps them as long as this object.
    trn_timage(std::uint32_t width, std::uint32_t height, T* pixels)
        : mWidth(width), mHeight(height), mPixels(pixels), mOwned(false)
    {
    }
    ~trn_timage() override { freePixels(); }

    std::uint32_t width() const { return mWidth; }
    std::uint32_t height() const { return mHeight; }
    std::uint64_t nbPixels() const { return std::uint64_t{mWidth} * mHeight; }
    T* pixels() const { return mPixels; }

    /// Zero-filled pixels in the place of the old ones; nothing happens when the size is the same.
    /// Throws std::bad_alloc beyond kMaxPixels or without memory; the old pixels then stay.
    void resize(std::uint32_t width, std::uint32_t height)
    {
        if (width == mWidth && height == mHeight)
            return;
        const std::uint64_t nb = std::uint64_t{width} * height;
        if (nb > kMaxPixels)
            throw std::bad_alloc();
        adopt(width, height, std::make_unique<T[]>(nb));
    }

    virtual void convert_from(const trn_RGBAn8&, T&) const
    {
        OvThrow::Signal("trn_timage< _T >::convert_from ( const trn_RGBAn8 &, _T & ) not defined");
    }
    virtual void convert_from(const T&, trn_RGBAn8&) const
    {
        OvThrow::Signal("trn_timage< _T >::convert_from ( const _T &, trn_RGBAn8 & ) not defined");
    }
    virtual T average(const T&, trn_float, const T&, trn_float, const T&, trn_float, const T&,
                      trn_float) const
    {
        OvThrow::Signal("trn_timage< _T >::average(const _T&,trn_float,const _T&,trn_float,"
                        "const _T&,trn_float,const _T&,trn_float) not defined");
    }

protected:
    void adopt(std::uint32_t width, std::uint32_t height, std::unique_ptr<T[]> pixels)
    {
        freePixels();
        mWidth = width;
        mHeight = height;
        mPixels = pixels.release();
        mOwned = true;
    }

private:
    void freePixels()
    {
        if (mOwned)
            delete[] mPixels;
    }

    std::uint32_t mWidth = 0;
    std::uint32_t mHeight = 0;
    T* mPixels = nullptr;
    bool mOwned = true;
};

} // namespace OvZel
