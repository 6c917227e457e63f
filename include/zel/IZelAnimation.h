#pragma once

#include <zel/CZelUUID.h>
#include <zel/IZelCameraPath.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class IZelViewOpt;

/// A named group of camera paths. Made and owned by its manager.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelAnimation : public IZelXML {
public:
    static constexpr CZelUUID sIID{"F29F8DF27BE94522ADC5FF107041EBA8"};

    /// Empty in a new animation; good until the next change.
    virtual const char* getName() const = 0;
    /// Null counts as the empty text.
    virtual void setName(const char* name) = 0;
    /// Owned by the animation, never null.
    virtual const TZelObjectMgr<IZelCameraPath>* getPaths() const = 0;
    virtual TZelObjectMgr<IZelCameraPath>* getPaths() = 0;
    /// 0 in a new animation. May be the number of paths, see below.
    virtual std::int32_t getCurrentPathIndex() const = 0;
    /// Below 0 becomes 0. Above the number of paths becomes the last path (0 if there is none); the
    /// number of paths itself is kept. In a document, an index that was replaced gives the warning
    /// "IZelAnimation::setCurrentPath - index invalid".
    virtual void setCurrentPath(std::int32_t index) = 0;
    /// How the paths are rendered; owned by the animation, never null.
    virtual const IZelViewOpt* getViewOptions() const = 0;
    virtual IZelViewOpt* getViewOptions() = 0;

protected:
    ~IZelAnimation() = default;
};

} // namespace OvZel
