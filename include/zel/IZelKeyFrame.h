#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelXML.h>

#include <cstdint>

namespace OvZel {

/// The value of an animated channel at one time. Nothing is computed: what lies between two key
/// frames is the client's.
///
/// Made and owned by its interpolated value. Every value is stored as it comes.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelKeyFrame : public IZelXML {
public:
    static constexpr CZelUUID sIID{"4BBC92790EB34901BB5938BD6FDA4DF1"};

    /// One value of any kind. Each kind has its own member; all of them start at the first byte.
    union uValue {
        double vector[3] = {}; ///< kind 0
        std::uint8_t color[3]; ///< kind 1: red, green, blue, without the unused byte of CZelColor
        double real;           ///< kind 2; has the precision of a float after a load
        std::uint8_t boolean;  ///< kind 3: 0 is false, anything else true
        std::int32_t integer;  ///< kinds 4 and 7
        std::int64_t date;     ///< kind 5: seconds since the start of 1970, universal time
        std::uint8_t id[16];   ///< kind 6
    };

    /// The kind of the three values: 0 vector, 1 colour, 2 real, 3 yes or no, 4 integer (in a new
    /// key frame), 5 date, 6 identifier, 7 choice. With any other number a save fails. A new kind
    /// leaves the bytes of the values as they are.
    virtual std::int32_t getValueType() const = 0;
    virtual void setValueType(std::int32_t type) = 0;
    /// All 24 bytes, zero in a new key frame; good as long as the key frame.
    ///
    /// A date in a file by a library before 5.1.1 is in local time there; a load brings it to
    /// universal time by the time zone of the machine it runs on.
    virtual const uValue& getValue() const = 0;
    virtual void setValue(const uValue& value) = 0;
    /// The number of the frame, 0 in a new key frame.
    virtual std::int32_t getTime() const = 0;
    virtual void setTime(std::int32_t time) = 0;
    /// True in a new key frame.
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// 0 linear (in a new key frame), 1 square, 2 one minus square, 3 sinus, 4 Bezier, 5 by date.
    /// With any other number a save fails.
    virtual std::int32_t getInterpolationType() const = 0;
    virtual void setInterpolationType(std::int32_t type) = 0;
    /// The control value ahead of this time, of the same kind as the value.
    virtual const uValue& getCPBefore() const = 0;
    virtual void setCPBefore(const uValue& value) = 0;
    /// The control value behind this time, of the same kind as the value.
    virtual const uValue& getCPAfter() const = 0;
    virtual void setCPAfter(const uValue& value) = 0;
    /// Whether the two control values move together; true in a new key frame.
    virtual bool getAreLocked() const = 0;
    virtual void setAreLocked(bool locked) = 0;

protected:
    ~IZelKeyFrame() = default;
};

static_assert(sizeof(IZelKeyFrame::uValue) == 24, "values cross the boundary as 24 bytes");

} // namespace OvZel
