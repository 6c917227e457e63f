#include "materials/CTurbulenceNode.h"

#include "tests/support/CNodeForm.h"

#include <gtest/gtest.h>

using namespace OvZel;
using namespace ZelTest;

namespace {

std::vector<CRow> rows()
{
    return {
        xyz("Origin", {1, 2, 3}, {0, 0, 0}),
        xyz("Amplitude", {4, 5, 6}, {0, 0, 0}),
        xyz("Direction", {7, 8, 9}, {0, 0, 1}),
        real("Size", 10.5, 0.0),
        raw("Table", "<Table Length=\"2\"><Float>1.500000</Float><Float>2.500000</Float></Table>",
            "<Table Length=\"0\"/>"),
    };
}

} // namespace

TEST(TurbulenceNodeXml, FileForm)
{
    checkElement<CNodeForm<CTurbulenceNode>>("Node", rows(), {.which = "Turbulence"});
}

TEST(TurbulenceNodeXml, PointsDirectionsAndVectors)
{
    checkTransform<CTurbulenceNode>(
        rows(), {{"Origin", {11, 22, 30}}, {"Amplitude", {1, 2, 0}}, {"Direction", {1, 2, 1}}});
}

TEST(TurbulenceNodeXml, Copies)
{
    checkCopies<CTurbulenceNode>(rows(), [](const ITurbulenceNode& from, ITurbulenceNode& to) {
        to.setOrigin(from.getOrigin());
        to.setAmplitude(from.getAmplitude());
        to.setDirection(from.getDirection());
        to.setSize(from.getSize());
        to.getTable()->copyFrom(from.getTable());
    });
}
