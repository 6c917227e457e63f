#include "tests/support/slots.h"

#include <zel/IAltitudeNode.h>
#include <zel/IChessNode.h>
#include <zel/ICustomNode.h>
#include <zel/IFresnelDiffuseNode.h>
#include <zel/IFresnelNode.h>
#include <zel/IGlazingNode.h>
#include <zel/IMatteShadowNode.h>
#include <zel/IMultiTextureNode.h>
#include <zel/ITCENode.h>
#include <zel/ITable.h>
#include <zel/ITurbulenceNode.h>
#include <zel/IWangTilesNode.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::expectOrder;

using TSubParts = TZelObjectMgr<IZelSubPart>;
using TTiles = TZelObjectMgr<IZelMultiMaps>;

#define TREE_FACE(I) CONST_AT(const ITCENode*, I::getTCENode), OTHER_AT(ITCENode*, I::getTCENode)
#define PAIR(I, name) AT(I::get##name), AT(I::set##name)

TEST(Slots, IChessNode)
{
    using I = IChessNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, Origin), PAIR(I, XAxis), PAIR(I, YAxis), PAIR(I, ZAxis),
                    PAIR(I, Size), PAIR(I, Proportion), PAIR(I, Checker), PAIR(I, Smooth),
                    PAIR(I, Geometry), CONST_AT(const ITable*, I::getTable1),
                    OTHER_AT(ITable*, I::getTable1), CONST_AT(const ITable*, I::getTable2),
                    OTHER_AT(ITable*, I::getTable2), CONST_AT(const ITable*, I::getTable3),
                    OTHER_AT(ITable*, I::getTable3)});
}

TEST(Slots, ITurbulenceNode)
{
    using I = ITurbulenceNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, Origin), PAIR(I, Amplitude), PAIR(I, Direction),
                    PAIR(I, Size), CONST_AT(const ITable*, I::getTable),
                    OTHER_AT(ITable*, I::getTable)});
}

TEST(Slots, IAltitudeNode)
{
    using I = IAltitudeNode;
    expectOrder(0, {TREE_FACE(I),
                    CONST_AT(const TSubParts*, I::getSubParts),
                    OTHER_AT(TSubParts*, I::getSubParts),
                    PAIR(I, Angle),
                    PAIR(I, Origin),
                    PAIR(I, XCenter),
                    PAIR(I, YCenter),
                    PAIR(I, MixFlag),
                    PAIR(I, MixColor),
                    PAIR(I, MixValue),
                    PAIR(I, Bump),
                    PAIR(I, NormalMap),
                    PAIR(I, MedStartValue),
                    PAIR(I, HighStartValue),
                    PAIR(I, Smoothness),
                    PAIR(I, Slope),
                    PAIR(I, SlopeAmplify),
                    PAIR(I, RandomSeed),
                    PAIR(I, TransitionContrast),
                    AT(I::getSubPartsId)});
}

TEST(Slots, FresnelNodes)
{
    using I = IFresnelNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, MinReflection), PAIR(I, PowerFactor)});
    using J = IFresnelDiffuseNode;
    expectOrder(0, {TREE_FACE(J), PAIR(J, MinReflection), PAIR(J, PowerFactor)});
}

TEST(Slots, IGlazingNode)
{
    using I = IGlazingNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, XScale), PAIR(I, YScale), PAIR(I, Flatness),
                    PAIR(I, TiltDetect), PAIR(I, TiltFactor), PAIR(I, Animation), PAIR(I, Speed),
                    AT(I::setPhase), AT(I::getPhase)});
}

TEST(Slots, IMatteShadowNode)
{
    using I = IMatteShadowNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, Transparency)});
}

TEST(Slots, ICustomNode)
{
    using OrvaneXML::XIXMLElement;
    using I = ICustomNode;
    expectOrder(0, {TREE_FACE(I), PAIR(I, Class), CONST_AT(const XIXMLElement*, I::getData),
                    OTHER_AT(XIXMLElement*, I::getData), AT(I::initWithXML)});
}

TEST(Slots, IMultiTextureNode)
{
    using I = IMultiTextureNode;
    expectOrder(0, {TREE_FACE(I),
                    CONST_AT(const TSubParts*, I::getSubParts),
                    OTHER_AT(TSubParts*, I::getSubParts),
                    PAIR(I, Resolution),
                    PAIR(I, Transition),
                    PAIR(I, RandomSeed),
                    PAIR(I, Threshold1),
                    PAIR(I, Threshold2),
                    PAIR(I, Origin),
                    PAIR(I, XCenter),
                    PAIR(I, YCenter),
                    PAIR(I, Normal),
                    AT(I::getXAxis),
                    AT(I::setYAxis),
                    AT(I::getYAxis),
                    AT(I::setXAxis),
                    PAIR(I, Angle),
                    PAIR(I, MixFlag),
                    PAIR(I, MixColor),
                    PAIR(I, MixValue),
                    PAIR(I, Reflection),
                    PAIR(I, ReflectionLimit),
                    PAIR(I, Glossy),
                    PAIR(I, Bump),
                    PAIR(I, NormalMap),
                    PAIR(I, Projection),
                    AT(I::getSubPartsId)});
}

TEST(Slots, IWangTilesNode)
{
    using I = IWangTilesNode;
    expectOrder(0, {TREE_FACE(I),
                    CONST_AT(const TTiles*, I::getTiles),
                    OTHER_AT(TTiles*, I::getTiles),
                    PAIR(I, RandomSeed),
                    PAIR(I, Origin),
                    PAIR(I, XCenter),
                    PAIR(I, YCenter),
                    PAIR(I, Normal),
                    AT(I::getXAxis),
                    AT(I::setYAxis),
                    AT(I::getYAxis),
                    AT(I::setXAxis),
                    PAIR(I, TexturesWidth),
                    PAIR(I, TexturesHeight),
                    PAIR(I, Angle),
                    PAIR(I, Glossy),
                    PAIR(I, Ambient),
                    PAIR(I, MixFlag),
                    PAIR(I, MixColor),
                    PAIR(I, MixValue),
                    PAIR(I, Transparent),
                    PAIR(I, Reflection),
                    PAIR(I, ReflectionLimit),
                    PAIR(I, Bump),
                    PAIR(I, NormalMap),
                    PAIR(I, Projection),
                    AT(I::getSubPartsId)});
}
