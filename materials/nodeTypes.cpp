#include "materials/nodeTypes.h"

#include "materials/CAltitudeNode.h"
#include "materials/CChessNode.h"
#include "materials/CCustomNode.h"
#include "materials/CFresnelDiffuseNode.h"
#include "materials/CFresnelNode.h"
#include "materials/CGlazingNode.h"
#include "materials/CLeafNode.h"
#include "materials/CMappingNode.h"
#include "materials/CMatteShadowNode.h"
#include "materials/CMultiTextureNode.h"
#include "materials/CTurbulenceNode.h"
#include "materials/CWangTilesNode.h"

#include <stdexcept>

namespace OvZel {

// 12 stands ahead of 11, so that messages name "Custom" as the end of the range.
const CZelLabel kNodeTypes[] = {{"Root", eRootNode},
                                {"Chess", eChessNode},
                                {"Mapping", eMappingNode},
                                {"Turbulence", eTurbulenceNode},
                                {"Leaf", eLeafNode},
                                {"Fresnel", eFresnelNode},
                                {"FresnelDiffuse", eFresnelDiffuseNode},
                                {"Glazing", eGlazingNode},
                                {"Altitude", eAltitudeNode},
                                {"MultiTexture", eMultiTextureNode},
                                {"WangTexture", eWangTilesNode},
                                {"MatteShadow", eMatteShadowNode},
                                {"Custom", eCustomNode},
                                {nullptr, 0}};

namespace {

/// How a class is made, new or after a source; the second answers null to a node of another class.
struct CMaker {
    eNodeType type;
    CTCENode* (*make)(ITCENode* parent);
    CTCENode* (*copy)(ITCENode* parent, const ITCENode& source);
};

template <class C>
constexpr CMaker maker(eNodeType type)
{
    return {type, [](ITCENode* parent) -> CTCENode* { return new C(parent); },
            [](ITCENode* parent, const ITCENode& source) -> CTCENode* {
                const auto* same = dynamic_cast<const C*>(&source);
                return same != nullptr ? new C(parent, *same) : nullptr;
            }};
}

constexpr CMaker kMakers[] = {
    maker<CChessNode>(eChessNode),
    maker<CMappingNode>(eMappingNode),
    maker<CTurbulenceNode>(eTurbulenceNode),
    maker<CLeafNode>(eLeafNode),
    maker<CCustomNode>(eCustomNode),
    maker<CFresnelNode>(eFresnelNode),
    maker<CFresnelDiffuseNode>(eFresnelDiffuseNode),
    maker<CGlazingNode>(eGlazingNode),
    maker<CAltitudeNode>(eAltitudeNode),
    maker<CMultiTextureNode>(eMultiTextureNode),
    maker<CWangTilesNode>(eWangTilesNode),
    maker<CMatteShadowNode>(eMatteShadowNode),
};

} // namespace

TZelComPtr<CTCENode> makeNode(ITCENode* parent, std::int32_t type)
{
    for (const CMaker& maker : kMakers)
        if (maker.type == type)
            return TZelComPtr<CTCENode>(maker.make(parent));
    return {};
}

TZelComPtr<CTCENode> copyNode(ITCENode* parent, const ITCENode& source)
{
    for (const CMaker& maker : kMakers)
        if (CTCENode* node = maker.copy(parent, source))
            return TZelComPtr<CTCENode>(node);
    throw std::runtime_error("Node is unknown");
}

} // namespace OvZel
