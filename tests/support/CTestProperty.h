#pragma once

#include "materials/CProperty.h"
#include "tests/support/CTestDocument.h"

#include <zel/IMappingNode.h>

#include <string>

namespace ZelTest {

/// A material in a stand-in for a document.
class CTestProperty {
public:
    CTestProperty() : mProperty(new OvZel::CProperty(document.ref())) {}

    OvZel::CProperty* operator->() const { return mProperty.get(); }
    OvZel::CProperty& operator*() const { return *mProperty; }
    OvZel::ITCENode& root() const { return *mProperty->getTCE()->getRootNode(); }
    void release() { mProperty.reset(); }

    /// The node at that depth of the chain of first children, the root's child at 0; may be null.
    OvZel::ITCENode* at(int depth) const
    {
        OvZel::ITCENode* node = root().getChild(0);
        for (; node != nullptr && depth > 0; --depth)
            node = node->getChild(0);
        return node;
    }

    /// A letter for each node of the chain: "m" a mapping node that counts for the facade, "S" one
    /// of a shader, "L" a leaf, "?" any other.
    std::string chain() const
    {
        std::string letters;
        for (OvZel::ITCENode* node = at(0); node != nullptr; node = node->getChild(0)) {
            if (node->asMappingNode() != nullptr)
                letters += node->isShader() ? 'S' : 'm';
            else
                letters += node->asLeafNode() != nullptr ? 'L' : '?';
        }
        return letters;
    }

    /// A new node as the first child of the parent, above what was there.
    OvZel::ITCENode& hang(OvZel::ITCENode& parent, OvZel::eNodeType type) const
    {
        OvZel::ITCENode* node = mProperty->getTCE()->createNode(type);
        if (OvZel::ITCENode* below = parent.getChild(0)) {
            node->addChild(below);
            below->setParent(node);
        }
        node->setParent(&parent);
        parent.setChild(0, node);
        node->Release();
        return *node;
    }

    CTestDocument document;

private:
    OvZel::TZelComPtr<OvZel::CProperty> mProperty;
};

} // namespace ZelTest
