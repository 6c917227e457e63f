#pragma once

#include "materials/TFresnelNode.h"

#include <zel/IFresnelNode.h>

namespace OvZel {

/// A reflection that grows with the viewing angle.
class CFresnelNode : public TFresnelNode<IFresnelNode> {
public:
    explicit CFresnelNode(ITCENode* parent) : TFresnelNode(parent) {}
    CFresnelNode(ITCENode* parent, const CFresnelNode& source) : TFresnelNode(parent, source) {}

    eNodeType getNodeType() const override { return eFresnelNode; }
    IFresnelNode* asFresnelNode() override { return this; }
};

} // namespace OvZel
