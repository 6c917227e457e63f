#include "materials/CFresnelDiffuseNode.h"
#include "materials/CFresnelNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace OvZel;
using namespace ZelTest;

namespace {

using CMessages = std::vector<std::string>;

std::vector<CRow> rows()
{
    return {real("Min.Reflection", 0.75, 0.05), real("Power.Factor", -7.0, 5.0)};
}

template <class Node>
class FresnelNode : public testing::Test {
};

using CFresnelNodes = testing::Types<CFresnelNode, CFresnelDiffuseNode>;
TYPED_TEST_SUITE(FresnelNode, CFresnelNodes);

} // namespace

TYPED_TEST(FresnelNode, FileForm)
{
    checkElement<CNodeForm<TypeParam>>("Node", rows(), {.which = "Fresnel"});
}

TYPED_TEST(FresnelNode, Copies)
{
    checkCopies<TypeParam>(rows(), [](const TypeParam& from, TypeParam& to) {
        to.setMinReflection(from.getMinReflection());
        to.setPowerFactor(from.getPowerFactor());
    });
}

TYPED_TEST(FresnelNode, TheMinimumIsClippedAndReported)
{
    // Both nodes report under the name of the first.
    const CMessages low = {"IFresnelNode::setMinReflection - Value is lower than 0"};
    const CMessages high = {"IFresnelNode::setMinReflection - Value is higer than 1"};
    const struct {
        double given, kept;
        CMessages reported;
    } cases[] = {{-0.1, 0.0, low}, {0.0, 0.0, {}},   {0.5, 0.5, {}},
                 {1.0, 1.0, {}},   {1.1, 1.0, high}, {std::nan(""), 0.0, low}};
    for (const auto& [given, kept, reported] : cases) {
        CTestDocument document;
        CNodeForm<TypeParam> form(document.ref());
        form.node().setMinReflection(given);
        EXPECT_EQ(form.node().getMinReflection(), kept) << "given " << given;
        EXPECT_EQ(document.takeMessages(), reported) << "given " << given;

        CNodeForm<TypeParam> loaded(document.ref());
        readNode(document, loaded,
                 "<E><Node><Min.Reflection>" + std::to_string(given) +
                     "</Min.Reflection><Power.Factor>1</Power.Factor></Node></E>");
        EXPECT_EQ(loaded.node().getMinReflection(), kept) << "read " << given;
        EXPECT_EQ(document.takeMessages(), reported) << "read " << given;
    }
}

TYPED_TEST(FresnelNode, OutsideATreeTheLimitIsStoredAndTheReportRaises)
{
    const TZelComPtr<TypeParam> node(new TypeParam(nullptr));
    node->setMinReflection(0.5);
    EXPECT_EQ(messageOf([&] { node->setMinReflection(2.0); }), "");
    EXPECT_EQ(node->getMinReflection(), 1.0);
}
