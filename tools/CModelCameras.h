#pragma once

#include <zel/CZelPoint.h>

#include <cstdint>
#include <string>
#include <vector>

struct aiScene;

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// Makes perspective views of the cameras of an imported scene: each where the node of its name
/// puts it, aiming at the point at a distance of 1 ahead of it. Parallel cameras are left out.
class CModelCameras {
public:
    /// Takes what it needs, and keeps nothing of the scene. Throws CToolError(eNotReadable) for a
    /// place that isn't a number.
    explicit CModelCameras(const aiScene& scene);

    /// To be called behind the layers: a view shows those that it names, so that each gets all.
    void addTo(OvZel::IZelMgr& document) const;
    /// The number of cameras that were left out.
    std::uint64_t getNbLeftOut() const { return mNbLeftOut; }

private:
    struct CView {
        std::string name;
        OvZel::CZelPoint position;
        OvZel::CZelPoint target;
        OvZel::CZelPoint up;
        double focal; ///< in degrees
    };

    std::vector<CView> mViews;
    std::uint64_t mNbLeftOut = 0;
};

} // namespace tool
