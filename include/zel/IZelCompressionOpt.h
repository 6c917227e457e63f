#pragma once

#include <cstdint>

namespace OvZel {

/// The compression of a film. Part of the options of a view: pointers to it are good as long as
/// the view lives.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelCompressionOpt {
public:
    /// A code of four characters, that of "raw " in new options.
    virtual std::uint32_t getCodec() const = 0;
    virtual void setCodec(std::uint32_t codec) = 0;
    /// 0 in new options.
    virtual std::int32_t getDepth() const = 0;
    virtual void setDepth(std::int32_t depth) = 0;
    /// 512 in new options.
    virtual std::int32_t getSpacialQuality() const = 0;
    virtual void setSpacialQuality(std::int32_t quality) = 0;
    /// 512 in new options.
    virtual std::int32_t getTemporalQuality() const = 0;
    virtual void setTemporalQuality(std::int32_t quality) = 0;
    /// 25.0 in new options.
    virtual double getFrameRate() const = 0;
    /// Below 1.0 it becomes 1.0, as a value that is not a number does. Nothing warns.
    virtual void setFrameRate(double rate) = 0;
    /// 10 in new options.
    virtual std::int32_t getKeyFrameRate() const = 0;
    virtual void setKeyFrameRate(std::int32_t rate) = 0;

protected:
    ~IZelCompressionOpt() = default;
};

} // namespace OvZel
