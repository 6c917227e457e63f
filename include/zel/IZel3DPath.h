#pragma once

#include <zel/IZelBasic.h>
#include <zel/IZelBezierPoint.h>
#include <zel/TZelObjectMgr.h>

namespace OvZel {

/// A Bezier curve along which an animated value can run; interpolated values name it by its
/// identifier, which is always that of the file after a load. Its name is not saved.
///
/// Paths are made and owned by their manager. A pointer from the manager carries no reference: call
/// AddRef to keep the path longer than the manager keeps it. AddRef and Release may come from any
/// thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZel3DPath : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"B27CF0E2236148A1BFCD9043D59B5726"};

    /// Whether the last point is joined to the first; false in a new path.
    virtual bool isClosed() const = 0;
    virtual void setClosed(bool closed) = 0;
    /// Owned by the path, never null. A path without points is valid.
    virtual const TZelObjectMgr<IZelBezierPoint>* getBezierPoints() const = 0;
    virtual TZelObjectMgr<IZelBezierPoint>* getBezierPoints() = 0;

protected:
    ~IZel3DPath() override = default;
};

} // namespace OvZel
