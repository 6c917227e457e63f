#pragma once

#include "tests/support/CNodeForm.h"
#include "tests/support/accessors.h"

#include <string>
#include <vector>

namespace ZelTest {

/// A value of a node and a piece of the text that it alone brings into the file form; null when it
/// brings none.
template <class Node>
struct CPlace {
    CAccess<Node> access;
    const char* text;
};

/// Checks that a setter reaches its own getter and element and no other of the list.
template <class Node>
void expectPlaces(const std::vector<CPlace<Node>>& places)
{
    for (const CPlace<Node>& set : places) {
        SCOPED_TRACE(set.access.name);
        CTestDocument document;
        CNodeForm<Node> form(document.ref());
        set.access.set(form.node());
        const std::string text = textOfNode(document, form);
        for (const CPlace<Node>& each : places) {
            const bool isIt = &each == &set;
            EXPECT_EQ(each.access.holds(form.node()), isIt) << each.access.name;
            if (each.text != nullptr) {
                EXPECT_EQ(text.find(each.text) != std::string::npos, isIt) << each.text;
            }
        }
    }
}

} // namespace ZelTest
