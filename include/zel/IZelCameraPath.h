#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelUUID.h>
#include <zel/IZelCamKey.h>
#include <zel/IZelXML.h>
#include <zel/TZelObjectMgr.h>

#include <cstdint>

namespace OvZel {

class IZelViewInfo;

/// The older form of a camera animation: points, and camera keys along them. Made and owned by its
/// animation. Nothing is evaluated.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelCameraPath : public IZelXML {
public:
    static constexpr CZelUUID sIID{"6B01EDFAF52F432AA9AE129E481106FC"};

    /// "Sequence 0" in a new path; good until the next change.
    virtual const char* getName() const = 0;
    /// Null counts as the empty text.
    virtual void setName(const char* name) = 0;
    /// False in a new path.
    virtual bool getViewFlag() const = 0;
    virtual void setViewFlag(bool flag) = 0;
    /// True in a new path.
    virtual bool getActive() const = 0;
    virtual void setActive(bool active) = 0;
    /// 4.0 in a new path. In a document, below 0.0 or not a number becomes 0.0, with the warning
    /// "Method setDuration has clipped a value out of range."; a path without a document keeps any
    /// value.
    virtual double getDuration() const = 0;
    virtual void setDuration(double duration) = 0;
    /// 0 in a new path. In a document, below 0 becomes 0, with the warning "Method setNbXImage has
    /// clipped a value out of range."; a path without a document keeps any value.
    virtual std::int32_t getNbXImage() const = 0;
    virtual void setNbXImage(std::int32_t nbImages) = 0;
    /// False in a new path.
    virtual bool getSpeedOn() const = 0;
    virtual void setSpeedOn(bool on) = 0;
    /// 0.0 in a new path.
    virtual double getSpeed() const = 0;
    virtual void setSpeed(double speed) = 0;
    /// True in a new path.
    virtual bool getPathClosed() const = 0;
    virtual void setPathClosed(bool closed) = 0;
    /// Owned by the path, never null.
    virtual const TZelObjectMgr<CZelPoint>* getPoints() const = 0;
    virtual TZelObjectMgr<CZelPoint>* getPoints() = 0;
    /// Owned by the path, never null.
    virtual const TZelObjectMgr<IZelCamKey>* getKeys() const = 0;
    virtual TZelObjectMgr<IZelCamKey>* getKeys() = 0;
    /// How the view looks; owned by the path, never null.
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    /// 0.0 in a new path.
    virtual double getCurrentTime() const = 0;
    virtual void setCurrentTime(double time) = 0;

protected:
    ~IZelCameraPath() = default;
};

} // namespace OvZel
