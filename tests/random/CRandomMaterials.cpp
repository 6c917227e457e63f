#include "tests/random/CRandomDocument.h"

namespace ZelTest {

using namespace OvZel;

namespace {

constexpr std::int32_t kNbProjections = 9;
constexpr std::int32_t kNbMapKinds = 11;

} // namespace

void CRandomDocument::fill(IZelProperty& property)
{
    fillBasic(property);
    property.setVisible(random.flag());
    property.setCastShadow(random.flag());
    property.setSmooth(random.number(0.01, 1.0));
    property.setBevel(random.number(0.0, 0.5));
    property.setScale(random.number(0.0, 1e6));
    property.setBillboard(random.flag());
    property.setReceiveShadow(random.flag());
    property.setUVDefined(random.flag());
    property.setOverloadPropIndex(random.reference());
    property.setOverloadId(random.reference());
    fill(*property.getTCE());
}

void CRandomDocument::fill(IZelTCE& material)
{
    material.setUrl(random.url());
    material.setId(random.reference());
    fill(*material.getName());
    material.setEditorName(random.text());
    fill(*material.getRootNode());
    while (material.getRootNode()->getNbChilds() > 0) // that of a new ground
        material.getRootNode()->removeChild(0);
    fillChildren(material, *material.getRootNode(), 3);
}

// A node has the children that its class is for; the way down ends in leaves.
void CRandomDocument::fillChildren(IZelTCE& material, ITCENode& parent, int depth)
{
    const std::int32_t type = parent.getNodeType();
    if (type == eLeafNode)
        return;
    const std::uint32_t nbChildren = type == eChessNode    ? 2
                                     : type == eCustomNode ? random.below(4)
                                                           : 1;
    for (std::uint32_t i = 0; i < nbChildren; ++i) {
        ITCENode* child = newNode(
            material, depth == 0 ? eLeafNode : random.integer(eChessNode, eMatteShadowNode));
        child->setParent(&parent);
        parent.addChild(child);
        fillChildren(material, *child, depth - 1);
        child->Release();
    }
}

ITCENode* CRandomDocument::newNode(IZelTCE& material, std::int32_t type)
{
    ITCENode* node = material.createNode(type);
    fill(*node);
    return node;
}

void CRandomDocument::fill(ITCENode& node)
{
    node.setId(random.id());
    node.setUIValue(random.word());
    node.setShader(random.flag());
    const auto fillIf = [&](auto* parameters) {
        if (parameters != nullptr)
            fill(*parameters);
    };
    fillIf(node.asChessNode());
    fillIf(node.asMappingNode());
    fillIf(node.asTurbulenceNode());
    fillIf(node.asLeafNode());
    fillIf(node.asFresnelNode());
    fillIf(node.asFresnelDiffuseNode());
    fillIf(node.asGlazingNode());
    fillIf(node.asCustomNode());
    fillIf(node.asAltitudeNode());
    fillIf(node.asMultiTextureNode());
    fillIf(node.asWangTilesNode());
    fillIf(node.asMatteShadowNode());
}

void CRandomDocument::fill(IChessNode& node)
{
    node.setOrigin(random.point());
    node.setXAxis(random.point());
    node.setYAxis(random.point());
    node.setZAxis(random.point());
    node.setSize(random.point());
    node.setProportion(random.point());
    node.setChecker(random.flag());
    node.setSmooth(random.flag());
    node.setGeometry(random.integer(0, 2));
    fill(*node.getTable1());
    fill(*node.getTable2());
    fill(*node.getTable3());
}

void CRandomDocument::fill(IMappingNode& node)
{
    fill(*node.getMaps());
    for (std::uint32_t left = random.below(3); left > 0; --left)
        node.addLinkedMap(random.id());
    node.setNormal(random.point());
    node.setOrigin(random.point());
    node.setXAxis(random.point());
    node.setYAxis(random.point());
    node.setAngle(random.number());
    node.setHeight(random.number());
    node.setWidth(random.number());
    node.setBump(random.number());
    node.setRelief(random.number());
    node.setXCenter(random.number(0.0, 1.0));
    node.setYCenter(random.number(0.0, 1.0));
    node.setXDelta(random.number());
    node.setYDelta(random.number());
    node.setGlossy(random.number(0.0, 1000.0));
    node.setXRepeat(random.flag());
    node.setYRepeat(random.flag());
    node.setSpecular(random.color());
    node.setTransparent(random.color());
    node.setReflection(random.color());
    node.setReflectionLimit(random.number());
    node.setCutSet(random.flag());
    node.setCutOut1Flag(random.flag());
    node.setCutOut1Color(random.color());
    node.setCutOut2Flag(random.flag());
    node.setCutOut2Color(random.color());
    node.setXInvert(random.flag());
    node.setYInvert(random.flag());
    node.setProjection(random.integer(0, kNbProjections - 1));
    node.setVisible(random.flag());
    node.setMixFlag(random.flag());
    node.setMixColor(random.color());
    node.setMixValue(random.number(0.0, 1.0));
    node.setCutAlpha(random.flag());
    node.setXMirror(random.flag());
    node.setYMirror(random.flag());
    node.setAlphaBump(random.flag());
    node.setAlphaTransparency(random.flag());
    node.setMIPMAP(random.flag());
    node.setTrilinearFilter(random.flag());
    node.setDisplayMode(random.flag());
    node.setBrightness(random.number());
    node.setContrast(random.number());
    node.setFrame(random.integer());
    node.setMovieLength(random.integer());
    node.setNormalMap(random.number());
    node.setMappingNodeId(random.id());
    node.setParentMappingNodeId(random.reference());
    node.setGlossyActivated(random.flag());
}

void CRandomDocument::fill(ITurbulenceNode& node)
{
    node.setOrigin(random.point());
    node.setAmplitude(random.point());
    node.setDirection(random.point());
    node.setSize(random.number());
    fill(*node.getTable());
}

void CRandomDocument::fill(ILeafNode& node)
{
    node.setDiffuse(random.color());
    node.setTransparent(random.color());
    node.setSpecular(random.color());
    node.setReflection(random.color());
    node.setReflectionLimit(random.number());
    node.setNeonColor(random.color());
    node.setNeonValue(random.number(0.0, 1e9));
    node.setRefraction(random.number(0.0, 10.0));
    node.setGlossy(random.number(0.0, 1000.0));
    node.setEmittingColor(random.color());
    node.setEmittingPower(random.number());
    node.setIlluminationModel(random.integer(0, 1));
    node.setGlossyReflectionSampling(random.integer());
    node.setGlossyRefractionSampling(random.integer());
    node.setRoughness(random.number());
    node.setReflectance(random.number());
    node.setGlossyReflectionShininess(random.integer());
    node.setGlossyRefractionShininess(random.integer());
    node.setShape(random.integer(0, 2));
}

void CRandomDocument::fill(IFresnelNode& node)
{
    node.setMinReflection(random.number(0.0, 1.0));
    node.setPowerFactor(random.number());
}

void CRandomDocument::fill(IFresnelDiffuseNode& node)
{
    node.setMinReflection(random.number(0.0, 1.0));
    node.setPowerFactor(random.number());
}

void CRandomDocument::fill(IGlazingNode& node)
{
    node.setXScale(random.number());
    node.setYScale(random.number());
    node.setFlatness(random.number());
    node.setTiltDetect(random.flag());
    node.setTiltFactor(random.number());
    node.setAnimation(random.flag());
    if (node.getAnimation())
        node.setSpeed(random.number());
}

void CRandomDocument::fill(ICustomNode& node)
{
    OrvaneXML::XIXMLElement& data = *node.getData();
    data.AddAttribute(data.MakeKey("Class"), random.text());
    fill(data);
}

void CRandomDocument::fill(IAltitudeNode& node)
{
    extend(*node.getSubParts());
    node.setAngle(random.number());
    node.setOrigin(random.point());
    node.setXCenter(random.number());
    node.setYCenter(random.number());
    node.setMixFlag(random.flag());
    node.setMixColor(random.color());
    node.setMixValue(random.number());
    node.setBump(random.number());
    node.setNormalMap(random.number());
    node.setMedStartValue(random.number());
    node.setHighStartValue(random.number());
    node.setSmoothness(random.number());
    node.setSlope(random.number());
    node.setSlopeAmplify(random.number());
    node.setRandomSeed(random.number());
    node.setTransitionContrast(random.number());
}

void CRandomDocument::fill(IMultiTextureNode& node)
{
    extend(*node.getSubParts());
    node.setResolution(random.number());
    node.setTransition(random.number());
    node.setRandomSeed(random.number());
    node.setThreshold1(random.number());
    node.setThreshold2(random.number());
    node.setOrigin(random.point());
    node.setXCenter(random.number());
    node.setYCenter(random.number());
    node.setNormal(random.point());
    node.setXAxis(random.point());
    node.setYAxis(random.point());
    node.setAngle(random.number());
    node.setMixFlag(random.flag());
    node.setMixColor(random.color());
    node.setMixValue(random.number());
    node.setReflection(random.color());
    node.setReflectionLimit(random.number());
    node.setGlossy(random.number());
    node.setBump(random.number());
    node.setNormalMap(random.number());
    node.setProjection(random.integer(0, kNbProjections - 1));
}

void CRandomDocument::fill(IWangTilesNode& node)
{
    extend(*node.getTiles());
    node.setRandomSeed(random.number());
    node.setOrigin(random.point());
    node.setXCenter(random.number());
    node.setYCenter(random.number());
    node.setNormal(random.point());
    node.setXAxis(random.point());
    node.setYAxis(random.point());
    node.setTexturesWidth(random.number());
    node.setTexturesHeight(random.number());
    node.setAngle(random.number());
    node.setGlossy(random.number());
    node.setAmbient(random.number());
    node.setMixFlag(random.flag());
    node.setMixColor(random.color());
    node.setMixValue(random.number(0.0, 1.0));
    node.setTransparent(random.color());
    node.setReflection(random.color());
    node.setReflectionLimit(random.number());
    node.setBump(random.number());
    node.setNormalMap(random.number());
    node.setProjection(random.integer(0, kNbProjections - 1));
}

void CRandomDocument::fill(IMatteShadowNode& node)
{
    node.setTransparency(random.number(0.0, 1.0));
}

void CRandomDocument::fill(IZelMultiMaps& maps)
{
    for (std::int32_t kind = 1; kind <= kNbMapKinds; ++kind)
        if (random.flag())
            maps.setURL(kind, random.url());
}

void CRandomDocument::fill(IZelSubPart& part)
{
    fill(static_cast<IZelMultiMaps&>(part));
    part.setHeight(random.number());
    part.setWidth(random.number());
}

void CRandomDocument::fill(ITable& table)
{
    table.setLength(random.integer(0, 5));
    for (std::int32_t i = 0; i < table.getLength(); ++i)
        table.setValue(i, static_cast<float>(random.coordinate()));
}

} // namespace ZelTest
