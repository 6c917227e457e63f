#pragma once

#include "materials/TFresnelNode.h"

#include <zel/IFresnelDiffuseNode.h>

namespace OvZel {

/// A diffuse reflection that grows with the viewing angle.
class CFresnelDiffuseNode : public TFresnelNode<IFresnelDiffuseNode> {
public:
    explicit CFresnelDiffuseNode(ITCENode* parent) : TFresnelNode(parent) {}
    CFresnelDiffuseNode(ITCENode* parent, const CFresnelDiffuseNode& source)
        : TFresnelNode(parent, source)
    {
    }

    eNodeType getNodeType() const override { return eFresnelDiffuseNode; }
    IFresnelDiffuseNode* asFresnelDiffuseNode() override { return this; }
};

} // namespace OvZel
