#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelKeyFrame.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// One animated channel of an object: its key frames and how they repeat.
///
/// Made and owned by its animated element. Every value is stored as it comes, and nothing is
/// evaluated.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelInterpolatedValue : public IZelXML {
public:
    static constexpr CZelUUID sIID{"EE9B48B60FB04627805B26B0EFA340D3"};

    /// What is animated: 1 to 279. 0 in a new value, which cannot be saved before a channel is set.
    /// 189 and 190 have one name in the file, so that 190 comes back as 189.
    virtual std::int32_t getChannel() const = 0;
    virtual void setChannel(std::int32_t channel) = 0;
    /// Owned by the value, never null.
    virtual const TZelObjectMgr<IZelKeyFrame>* getKeyFrames() const = 0;
    virtual TZelObjectMgr<IZelKeyFrame>* getKeyFrames() = 0;
    /// The value of a channel without key frames. Owned by the value, never null.
    virtual const IZelKeyFrame* getDefaultValue() const = 0;
    virtual IZelKeyFrame* getDefaultValue() = 0;
    /// False in a new value.
    virtual bool getLoop() const = 0;
    virtual void setLoop(bool loop) = 0;
    /// 0 in a new value.
    virtual std::int32_t getNbLoops() const = 0;
    virtual void setNbLoops(std::int32_t nbLoops) = 0;
    /// The 3D path that the value follows, null in a new value; nothing checks that it exists.
    virtual const CZelUUID& getPathId() const = 0;
    virtual void setPathId(const CZelUUID& id) = 0;

protected:
    ~IZelInterpolatedValue() = default;
};

} // namespace OvZel
