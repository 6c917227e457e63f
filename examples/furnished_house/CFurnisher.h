#pragma once

#include <zel/IZelMgr.h>

#include <cstddef>
#include <map>
#include <string>

namespace example {

/// One piece of furniture as it stands in a room.
struct CPiece {
    std::string room;
    std::string model;            ///< its document, without ".zel"
    OvZel::CZelPoint place;       ///< of the middle of its bottom, in metres, y up
    double angle = 0.0;           ///< to the left, seen from above, in degrees
    OvZel::CZelPoint centimetres; ///< width, height and depth
};

/// Puts furniture into a scene: a component for each model, an instance for each piece, a layer for
/// each room.
class CFurnisher {
public:
    /// The models are documents below the folder, each with one mesh and its materials. The scene
    /// must outlive the furnisher.
    CFurnisher(OvZel::IZelMgr& scene, std::string folder);

    /// Throws std::runtime_error when the model cannot be read or is empty.
    void place(const CPiece& piece);
    /// A camera in front of the house, which shows all layers.
    void addCamera();

    std::size_t getNbModels() const { return mComponents.size(); }

private:
    struct CComponent {
        OvZel::CZelUUID id;
        OvZel::CZelBox box;
    };

    const CComponent& componentOf(const std::string& model);
    CComponent addComponent(const std::string& model);
    const OvZel::CZelUUID& layerOf(const std::string& room);

    OvZel::IZelMgr& mScene;
    std::string mFolder;
    std::map<std::string, CComponent> mComponents;
    std::map<std::string, OvZel::CZelUUID> mLayers;
};

} // namespace example
