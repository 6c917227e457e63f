#include "materials/CGlazingNode.h"

#include "tests/support/CNodeForm.h"
#include "tests/support/expectPlaces.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

std::vector<CRow> rows()
{
    return {
        real("X.Scale", 1.0, 50.0),    real("Y.Scale", 2.0, 50.0),
        real("Flatness", 3.0, 0.5),    flag("Tilt.Detect", true),
        real("Tilt.Factor", 4.0, 0.5), absentAlsoDrops(flag("Animation", false), {"Speed"}),
        real("Speed", 7.0, 2.0), // required while there is an animation
    };
}

} // namespace

TEST(GlazingNodeXml, FileForm)
{
    checkElement<CNodeForm<CGlazingNode>>("Node", rows(), {.which = "Glazing"});
}

TEST(GlazingNodeXml, Copies)
{
    checkCopies<CGlazingNode>(rows(), [](const IGlazingNode& from, IGlazingNode& to) {
        to.setXScale(from.getXScale());
        to.setYScale(from.getYScale());
        to.setFlatness(from.getFlatness());
        to.setTiltDetect(from.getTiltDetect());
        to.setTiltFactor(from.getTiltFactor());
        to.setAnimation(from.getAnimation());
        to.setSpeed(from.getSpeed());
    });
}

TEST(GlazingNodeXml, ASpeedWithTheAnimationOffIsWrittenButNotRead)
{
    CTestDocument document;
    CNodeForm<CGlazingNode> form(document.ref());
    form.node().setSpeed(7.0);
    const std::string text = textOfNode(document, form);
    EXPECT_NE(text.find("<Speed>7.000000</Speed>"), std::string::npos) << text;
    readNode(document, form, text);
    EXPECT_EQ(form.node().getSpeed(), 2.0);
    EXPECT_FALSE(form.node().getAnimation());
}

TEST(GlazingNodeXml, WithoutAnimationTheSpeedMayBeMissing)
{
    CTestDocument document;
    CNodeForm<CGlazingNode> form(document.ref());
    std::string text = textOfNode(document, form);
    const std::string speed = "<Speed>2.000000</Speed>";
    text.erase(text.find(speed), speed.size());
    form.node().setSpeed(7.0);
    form.node().setAnimation(true);
    readNode(document, form, text);
    EXPECT_EQ(form.node().getSpeed(), 2.0);
    EXPECT_FALSE(form.node().getAnimation());
}

TEST(GlazingNode, ThePhaseIsStoredAndNotSaved)
{
    CTestDocument document;
    CNodeForm<CGlazingNode> form(document.ref());
    EXPECT_EQ(form.node().getPhase(), 0.0);
    const std::string text = textOfNode(document, form);
    form.node().setPhase(-3.5);
    EXPECT_EQ(form.node().getPhase(), -3.5);
    EXPECT_EQ(textOfNode(document, form), text);
    CNodeForm<CGlazingNode> copy(document.ref(), form.node());
    EXPECT_EQ(copy.node().getPhase(), -3.5);
}

TEST(GlazingNode, NothingIsClipped)
{
    CTestDocument document;
    CNodeForm<CGlazingNode> form(document.ref());
    form.node().setFlatness(-1e9);
    form.node().setTiltFactor(1e9);
    EXPECT_EQ(form.node().getFlatness(), -1e9);
    EXPECT_EQ(form.node().getTiltFactor(), 1e9);
}

TEST(GlazingNode, ValuesThatLookAlikeAreNotMixedUp)
{
    using N = CGlazingNode;
    expectPlaces<N>({
        {ACCESS(N, XScale, 1.5), "<X.Scale>1.5"},
        {ACCESS(N, YScale, 2.5), "<Y.Scale>2.5"},
        {ACCESS(N, Flatness, 3.5), "<Flatness>3.5"},
        {ACCESS(N, TiltFactor, 4.5), "<Tilt.Factor>4.5"},
        {ACCESS(N, Speed, 5.5), "<Speed>5.5"},
    });
}
