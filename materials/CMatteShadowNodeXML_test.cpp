#include "materials/CMatteShadowNode.h"

#include "tests/support/CNodeForm.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OvZel;
using namespace ZelTest;

namespace {

std::vector<CRow> rows()
{
    return {real("Transparency", 0.75, 0.0)};
}

} // namespace

TEST(MatteShadowNodeXml, FileForm)
{
    checkElement<CNodeForm<CMatteShadowNode>>("Node", rows(), {.which = "MatteShadow"});
}

TEST(MatteShadowNodeXml, Copies)
{
    checkCopies<CMatteShadowNode>(rows(), [](const IMatteShadowNode& from, IMatteShadowNode& to) {
        to.setTransparency(from.getTransparency());
    });
}

TEST(MatteShadowNode, TransparencyIsClippedInSilence)
{
    struct {
        double given, kept;
    } cases[] = {{-0.1, 0.0}, {0.0, 0.0}, {1.0, 1.0}, {1.5, 1.0}, {std::nan(""), 0.0}};
    for (const auto [given, kept] : cases) {
        CTestDocument document;
        CNodeForm<CMatteShadowNode> form(document.ref());
        form.node().setTransparency(0.5);
        form.node().setTransparency(given);
        EXPECT_EQ(form.node().getTransparency(), kept) << "given " << given;

        form.node().setTransparency(0.5);
        readNode(document, form,
                 "<E><Node><Transparency>" + std::to_string(given) + "</Transparency></Node></E>");
        EXPECT_EQ(form.node().getTransparency(), kept) << "read " << given;
        EXPECT_TRUE(document.takeMessages().empty());
    }
}
