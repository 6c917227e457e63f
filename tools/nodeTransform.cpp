#include "tools/nodeTransform.h"

#include "tools/CToolError.h"

#include <assimp/scene.h>

namespace tool {

CTransform transformOf(const aiNode& node)
{
    const aiMatrix4x4& m = node.mTransformation;
    const CTransform transform{
        {{m.a1, m.a2, m.a3, m.a4}, {m.b1, m.b2, m.b3, m.b4}, {m.c1, m.c2, m.c3, m.c4}}};
    if (!transform.isFinite())
        throw CToolError(eNotReadable, "the model has a place that isn't a number");
    return transform;
}

} // namespace tool
