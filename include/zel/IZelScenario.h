#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelAnimatedElement.h>
#include <zel/IZelScenarioTimeGuide.h>
#include <zel/IZelSequence.h>
#include <zel/IZelSnd.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

/// A time line: sequences, animated elements, sounds and time guides. Made and owned by its
/// manager. Times are numbers of frames, and every number is stored as it comes.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelScenario : public IZelXML {
public:
    static constexpr CZelUUID sIID{"AA07FC601C724B4193F8D884D10FEA66"};

    /// Empty in a new scenario; good until the next change.
    virtual const char* getName() const = 0;
    /// Null counts as the empty text.
    virtual void setName(const char* name) = 0;
    /// All lists are owned by the scenario and never null.
    virtual const TZelObjectMgr<IZelSequence>* getSequences() const = 0;
    virtual TZelObjectMgr<IZelSequence>* getSequences() = 0;
    /// The objects that move, with their key frames.
    virtual const TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() const = 0;
    virtual TZelObjectMgr<IZelAnimatedElement>* getAnimatedElements() = 0;
    /// 0 in a new scenario.
    virtual std::int32_t getCurrentFrame() const = 0;
    virtual void setCurrentFrame(std::int32_t frame) = 0;
    /// An index into the sequences that nothing checks, 0 in a new scenario.
    virtual std::int32_t getCurrentSequence() const = 0;
    virtual void setCurrentSequence(std::int32_t index) = 0;
    /// The sounds.
    virtual const TZelObjectMgr<IZelSnd>* getSnds() const = 0;
    virtual TZelObjectMgr<IZelSnd>* getSnds() = 0;
    /// 500 in a new scenario.
    virtual std::int32_t getMaxTime() const = 0;
    virtual void setMaxTime(std::int32_t time) = 0;
    /// Frames per second, 25 in a new scenario.
    virtual std::int32_t getFPS() const = 0;
    virtual void setFPS(std::int32_t fps) = 0;
    /// 0 in a new scenario.
    virtual void setStartVisibleTime(std::int32_t time) = 0;
    virtual std::int32_t getStartVisibleTime() const = 0;
    /// 500 in a new scenario; it does not follow the maximum time.
    virtual void setEndVisibleTime(std::int32_t time) = 0;
    virtual std::int32_t getEndVisibleTime() const = 0;
    /// The marks on the time line.
    virtual const TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() const = 0;
    virtual TZelObjectMgr<IZelScenarioTimeGuide>* getTimeGuides() = 0;

protected:
    ~IZelScenario() = default;
};

} // namespace OvZel
