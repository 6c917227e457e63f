#pragma once

#include "core/CRange.h"
#include "core/TZelFrontier.h"

#include <zel/IZelCompressionOpt.h>

#include <limits>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class CZelXMLIO;

/// The compression of a film; the element "Compression".
class CCompressionOpt : public TZelFrontier<IZelCompressionOpt> {
public:
    static constexpr CRange kFrameRate{1.0, std::numeric_limits<double>::infinity()};

    virtual ~CCompressionOpt() = default;

    std::uint32_t getCodec() const override { return mCodec; }
    void setCodec(std::uint32_t codec) override { mCodec = codec; }
    std::int32_t getDepth() const override { return mDepth; }
    void setDepth(std::int32_t depth) override { mDepth = depth; }
    std::int32_t getSpacialQuality() const override { return mSpacialQuality; }
    void setSpacialQuality(std::int32_t quality) override { mSpacialQuality = quality; }
    std::int32_t getTemporalQuality() const override { return mTemporalQuality; }
    void setTemporalQuality(std::int32_t quality) override { mTemporalQuality = quality; }
    double getFrameRate() const override { return mFrameRate; }
    void setFrameRate(double rate) override { mFrameRate = kFrameRate.clip(rate); }
    std::int32_t getKeyFrameRate() const override { return mKeyFrameRate; }
    void setKeyFrameRate(std::int32_t rate) override { mKeyFrameRate = rate; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    std::uint32_t mCodec = 0x72617720;
    std::int32_t mDepth = 0;
    std::int32_t mSpacialQuality = 512;
    std::int32_t mTemporalQuality = 512;
    double mFrameRate = 25.0;
    std::int32_t mKeyFrameRate = 10;
};

} // namespace OvZel
