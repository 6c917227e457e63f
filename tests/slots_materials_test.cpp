#include "tests/support/slots.h"

#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>
#include <zel/IRootNode.h>
#include <zel/ITCENode.h>
#include <zel/IZelSubPart.h>
#include <zel/IZelTCE.h>

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::expectOrder;
using ZelTest::slotOf;

TEST(MaterialSlots, ITCENode)
{
    using N = ITCENode;
    expectOrder(7,
                {AT(N::getParent),
                 AT(N::setParent),
                 AT(N::getNbChilds),
                 {"getChild", slotOf<ITCENode*(std::int32_t)>(&N::getChild)},
                 {"getChild const", slotOf<const ITCENode*(std::int32_t) const>(&N::getChild)},
                 AT(N::setChild),
                 AT(N::addChild),
                 AT(N::removeChild),
                 AT(N::getId),
                 AT(N::setId),
                 {"findNode", slotOf<ITCENode*(const CZelUUID&)>(&N::findNode)},
                 {"findNode const", slotOf<const ITCENode*(const CZelUUID&) const>(&N::findNode)},
                 AT(N::getUIValue),
                 AT(N::setUIValue),
                 AT(N::getNodeType),
                 AT(N::asRootNode),
                 AT(N::asChessNode),
                 AT(N::asMappingNode),
                 AT(N::asTurbulenceNode),
                 AT(N::asLeafNode),
                 AT(N::asFresnelNode),
                 AT(N::asFresnelDiffuseNode),
                 AT(N::asGlazingNode),
                 AT(N::asCustomNode),
                 AT(N::asAltitudeNode),
                 AT(N::asMultiTextureNode),
                 AT(N::asWangTilesNode),
                 AT(N::asMatteShadowNode),
                 AT(N::asReserved1),
                 AT(N::asReserved2),
                 AT(N::asReserved3),
                 AT(N::asReserved4),
                 AT(N::isShader),
                 AT(N::setShader)});
}

TEST(MaterialSlots, NodeTypes)
{
    const eNodeType types[] = {
        eRootNode,      eChessNode,          eMappingNode,    eTurbulenceNode, eLeafNode,
        eFresnelNode,   eFresnelDiffuseNode, eGlazingNode,    eAltitudeNode,   eMultiTextureNode,
        eWangTilesNode, eCustomNode,         eMatteShadowNode};
    std::int32_t number = 0;
    for (const eNodeType type : types)
        EXPECT_EQ(type, number++);
}

TEST(MaterialSlots, IRootNode)
{
    expectOrder(0, {CONST_AT(const ITCENode*, IRootNode::getTCENode),
                    OTHER_AT(ITCENode*, IRootNode::getTCENode), AT(IRootNode::reportWarning)});
}

TEST(MaterialSlots, IZelTCE)
{
    using T = IZelTCE;
    expectOrder(0, {AT(T::getUrl), AT(T::setUrl), AT(T::getId), AT(T::setId),
                    CONST_AT(const IZelString*, T::getName), OTHER_AT(IZelString*, T::getName),
                    AT(T::getUIValue), AT(T::setUIValue), CONST_AT(const ITCENode*, T::getRootNode),
                    OTHER_AT(ITCENode*, T::getRootNode), AT(T::createNode), AT(T::getEditorName),
                    AT(T::setEditorName)});
}

TEST(MaterialSlots, IZelMultiMapsAndIZelSubPart)
{
    expectOrder(0, {AT(IZelMultiMaps::getURL), AT(IZelMultiMaps::setURL)});
    expectOrder(0,
                {AT(IZelSubPart::getURL), AT(IZelSubPart::setURL), AT(IZelSubPart::getHeight),
                 AT(IZelSubPart::setHeight), AT(IZelSubPart::getWidth), AT(IZelSubPart::setWidth)});
}

TEST(MaterialSlots, IMappingNode)
{
    using M = IMappingNode;
    expectOrder(0, {CONST_AT(const ITCENode*, M::getTCENode),
                    OTHER_AT(ITCENode*, M::getTCENode),
                    CONST_AT(const IZelMultiMaps*, M::getMaps),
                    OTHER_AT(IZelMultiMaps*, M::getMaps),
                    AT(M::getNbLinkedMaps),
                    AT(M::getMapLinked),
                    AT(M::addLinkedMap),
                    AT(M::removeLinkedMap),
                    AT(M::getNormal),
                    AT(M::setNormal),
                    AT(M::getOrigin),
                    AT(M::setOrigin),
                    AT(M::getXAxis),
                    AT(M::setXAxis),
                    AT(M::getYAxis),
                    AT(M::setYAxis),
                    AT(M::getAngle),
                    AT(M::setAngle),
                    AT(M::getHeight),
                    AT(M::setHeight),
                    AT(M::getWidth),
                    AT(M::setWidth),
                    AT(M::getBump),
                    AT(M::setBump),
                    AT(M::getRelief),
                    AT(M::setRelief),
                    AT(M::getXCenter),
                    AT(M::setXCenter),
                    AT(M::getYCenter),
                    AT(M::setYCenter),
                    AT(M::getXDelta),
                    AT(M::setXDelta),
                    AT(M::getYDelta),
                    AT(M::setYDelta),
                    AT(M::getGlossy),
                    AT(M::setGlossy),
                    AT(M::getXRepeat),
                    AT(M::setXRepeat),
                    AT(M::getYRepeat),
                    AT(M::setYRepeat),
                    AT(M::getSpecular),
                    AT(M::setSpecular),
                    AT(M::getTransparent),
                    AT(M::setTransparent),
                    AT(M::getReflection),
                    AT(M::setReflection),
                    AT(M::getReflectionLimit),
                    AT(M::setReflectionLimit),
                    AT(M::getCutSet),
                    AT(M::setCutSet),
                    AT(M::getCutOut1Flag),
                    AT(M::setCutOut1Flag),
                    AT(M::getCutOut1Color),
                    AT(M::setCutOut1Color),
                    AT(M::getCutOut2Flag),
                    AT(M::setCutOut2Flag),
                    AT(M::getCutOut2Color),
                    AT(M::setCutOut2Color),
                    AT(M::getXInvert),
                    AT(M::setXInvert),
                    AT(M::getYInvert),
                    AT(M::setYInvert),
                    AT(M::getProjection),
                    AT(M::setProjection),
                    AT(M::getVisible),
                    AT(M::setVisible),
                    AT(M::getMixFlag),
                    AT(M::setMixFlag),
                    AT(M::getMixColor),
                    AT(M::setMixColor),
                    AT(M::getMixValue),
                    AT(M::setMixValue),
                    AT(M::getCutAlpha),
                    AT(M::setCutAlpha),
                    AT(M::getXMirror),
                    AT(M::setXMirror),
                    AT(M::getYMirror),
                    AT(M::setYMirror),
                    AT(M::getAlphaBump),
                    AT(M::setAlphaBump),
                    AT(M::getAlphaTransparency),
                    AT(M::setAlphaTransparency),
                    AT(M::getMIPMAP),
                    AT(M::setMIPMAP),
                    AT(M::getTrilinearFilter),
                    AT(M::setTrilinearFilter),
                    AT(M::setDisplayMode),
                    AT(M::getDisplayMode),
                    AT(M::getBrightness),
                    AT(M::setBrightness),
                    AT(M::getContrast),
                    AT(M::setContrast),
                    AT(M::getFrame),
                    AT(M::setFrame),
                    AT(M::getMovieLength),
                    AT(M::setMovieLength),
                    AT(M::getNormalMap),
                    AT(M::setNormalMap),
                    AT(M::getMappingNodeId),
                    AT(M::setMappingNodeId),
                    AT(M::getParentMappingNodeId),
                    AT(M::setParentMappingNodeId),
                    AT(M::putInXML),
                    AT(M::initWithXML),
                    AT(M::getGlossyActivated),
                    AT(M::setGlossyActivated)});
}

TEST(MaterialSlots, ILeafNode)
{
    using L = ILeafNode;
    expectOrder(0, {CONST_AT(const ITCENode*, L::getTCENode),
                    OTHER_AT(ITCENode*, L::getTCENode),
                    AT(L::getDiffuse),
                    AT(L::setDiffuse),
                    AT(L::getTransparent),
                    AT(L::setTransparent),
                    AT(L::getSpecular),
                    AT(L::setSpecular),
                    AT(L::getReflection),
                    AT(L::setReflection),
                    AT(L::getReflectionLimit),
                    AT(L::setReflectionLimit),
                    AT(L::getNeonColor),
                    AT(L::setNeonColor),
                    AT(L::getNeonValue),
                    AT(L::setNeonValue),
                    AT(L::getRefraction),
                    AT(L::setRefraction),
                    AT(L::getGlossy),
                    AT(L::setGlossy),
                    AT(L::getEmittingColor),
                    AT(L::setEmittingColor),
                    AT(L::getEmittingPower),
                    AT(L::setEmittingPower),
                    AT(L::getIlluminationModel),
                    AT(L::setIlluminationModel),
                    AT(L::getGlossyReflectionSampling),
                    AT(L::setGlossyReflectionSampling),
                    AT(L::getGlossyRefractionSampling),
                    AT(L::setGlossyRefractionSampling),
                    AT(L::getRoughness),
                    AT(L::setRoughness),
                    AT(L::getReflectance),
                    AT(L::setReflectance),
                    AT(L::getGlossyReflectionShininess),
                    AT(L::setGlossyReflectionShininess),
                    AT(L::getGlossyRefractionShininess),
                    AT(L::setGlossyRefractionShininess),
                    AT(L::getShape),
                    AT(L::setShape)});
}
