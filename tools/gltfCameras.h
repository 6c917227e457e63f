#pragma once

struct aiCamera;
struct aiScene;

namespace tool {

/// Whether the scene comes from a glTF file. A camera of such a file stands at its node; its own
/// position repeats the translation of the node and counts for nothing.
bool isGltf(const aiScene& scene);
/// How wide the camera of a glTF file sees, in radians. The file tells how high it sees, and the
/// importer takes that times the aspect for the width, which holds for small angles alone.
double gltfWidth(const aiCamera& camera);

} // namespace tool
