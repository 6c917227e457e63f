#pragma once

#include "tools/CNames.h"

#include <cstdint>
#include <string>

namespace OvZel {
class IZelMgr;
class IZelProperty;
} // namespace OvZel

namespace tool {

/// What the animations of a document may name: the objects that are animated, by their kind, and
/// the 3D paths along which something runs.
class CAnimationTargets {
public:
    explicit CAnimationTargets(OvZel::IZelMgr& document);

    /// The word for a kind of animated elements, or the number of what is no kind.
    static std::string getKind(std::int32_t kind);

    /// Those of a kind; none for a number that is no kind.
    const CNames& getObjects(std::int32_t kind) const;
    /// The instances of objects, at which a camera may aim.
    const CNames& getInstances() const { return getObjects(4); }
    const CNames& getPaths() const { return mPaths; }

private:
    static constexpr std::int32_t kNbKinds = 7;

    void addScene(OvZel::IZelMgr& document);
    void addProperties(OvZel::IZelMgr& document);
    void addProperty(OvZel::IZelProperty& property);

    CNames mObjects[kNbKinds];
    CNames mPaths;
};

} // namespace tool
