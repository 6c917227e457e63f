#pragma once

#include "core/TZelComPtr.h"
#include "materials/CZelTCE.h"
#include "tests/support/CTestDocument.h"

#include <string>
#include <vector>

namespace ZelTest {

/// The root of a material in a document of its own.
struct CTestMaterial {
    CTestDocument document;
    OvZel::TZelComPtr<OvZel::CZelTCE> root{new OvZel::CZelTCE(document.ref())};

    /// A new node, also as the last child of its parent.
    template <class C>
    C* add(OvZel::ITCENode* parent)
    {
        auto* node = new C(parent);
        parent->addChild(node);
        return node;
    }
    std::vector<std::string> takeMessages() { return document.takeMessages(); }
};

} // namespace ZelTest
