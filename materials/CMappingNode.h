#pragma once

#include "core/CRange.h"
#include "materials/CMappingValues.h"
#include "materials/CZelMultiMaps.h"
#include "materials/TTCENode.h"

#include <zel/IMappingNode.h>

#include <vector>

namespace OvZel {

/// A layer of images.
class CMappingNode : public TTCENode<IMappingNode> {
public:
    static constexpr std::int32_t kDiffuseMap = 1;
    static constexpr std::int32_t kOrthogonal = 1;
    static constexpr std::int32_t kPlanar = 8;
    static constexpr CRange kCenter{0.0, 1.0};
    static constexpr CRange kGlossy{0.0, 1000.0};
    static constexpr CRange kMixValue{0.0, 1.0};

    /// The parent may be null; its list of children does not change.
    explicit CMappingNode(ITCENode* parent) : TTCENode(parent) {}
    CMappingNode(ITCENode* parent, const CMappingNode& source);

    eNodeType getNodeType() const override { return eMappingNode; }
    IMappingNode* asMappingNode() override { return this; }

    const IZelMultiMaps* getMaps() const override { return &mMaps; }
    IZelMultiMaps* getMaps() override { return &mMaps; }
    std::int32_t getNbLinkedMaps() const override
    {
        return static_cast<std::int32_t>(mLinkedMaps.size());
    }
    const CZelUUID& getMapLinked(std::int32_t index) const override;
    void addLinkedMap(const CZelUUID& id) override;
    void removeLinkedMap(const CZelUUID& id) override;
    const CZelPoint& getNormal() const override { return mValues.normal; }
    void setNormal(const CZelPoint& vector) override { mValues.normal = vector; }
    const CZelPoint& getOrigin() const override { return mValues.origin; }
    void setOrigin(const CZelPoint& vector) override { mValues.origin = vector; }
    const CZelPoint& getXAxis() const override { return mValues.xAxis; }
    void setXAxis(const CZelPoint& vector) override { mValues.xAxis = vector; }
    const CZelPoint& getYAxis() const override { return mValues.yAxis; }
    void setYAxis(const CZelPoint& vector) override { mValues.yAxis = vector; }
    double getAngle() const override { return mValues.angle; }
    void setAngle(double value) override { mValues.angle = value; }
    double getHeight() const override { return mValues.height; }
    void setHeight(double value) override { mValues.height = value; }
    double getWidth() const override { return mValues.width; }
    void setWidth(double value) override { mValues.width = value; }
    double getBump() const override { return mValues.bump; }
    void setBump(double value) override { mValues.bump = value; }
    double getRelief() const override { return mValues.relief; }
    void setRelief(double value) override { mValues.relief = value; }
    double getXCenter() const override { return mValues.xCenter; }
    void setXCenter(double value) override { mValues.xCenter = kCenter.clip(value); }
    double getYCenter() const override { return mValues.yCenter; }
    void setYCenter(double value) override { mValues.yCenter = kCenter.clip(value); }
    double getXDelta() const override { return mValues.xDelta; }
    void setXDelta(double value) override { mValues.xDelta = value; }
    double getYDelta() const override { return mValues.yDelta; }
    void setYDelta(double value) override { mValues.yDelta = value; }
    double getGlossy() const override { return mValues.glossy; }
    void setGlossy(double value) override { mValues.glossy = kGlossy.clip(value); }
    bool getXRepeat() const override { return mValues.xRepeat; }
    void setXRepeat(bool flag) override { mValues.xRepeat = flag; }
    bool getYRepeat() const override { return mValues.yRepeat; }
    void setYRepeat(bool flag) override { mValues.yRepeat = flag; }
    CZelColor getSpecular() const override { return mValues.specular; }
    void setSpecular(const CZelColor& color) override { mValues.specular = color; }
    CZelColor getTransparent() const override { return mValues.transparent; }
    void setTransparent(const CZelColor& color) override { mValues.transparent = color; }
    CZelColor getReflection() const override { return mValues.reflection; }
    void setReflection(const CZelColor& color) override { mValues.reflection = color; }
    double getReflectionLimit() const override { return mValues.reflectionLimit; }
    void setReflectionLimit(double value) override { mValues.reflectionLimit = value; }
    bool getCutSet() const override { return mValues.cutSet; }
    void setCutSet(bool flag) override { mValues.cutSet = flag; }
    bool getCutOut1Flag() const override { return mValues.cutOut1Flag; }
    void setCutOut1Flag(bool flag) override { mValues.cutOut1Flag = flag; }
    CZelColor getCutOut1Color() const override { return mValues.cutOut1Color; }
    void setCutOut1Color(const CZelColor& color) override { mValues.cutOut1Color = color; }
    bool getCutOut2Flag() const override { return mValues.cutOut2Flag; }
    void setCutOut2Flag(bool flag) override { mValues.cutOut2Flag = flag; }
    CZelColor getCutOut2Color() const override { return mValues.cutOut2Color; }
    void setCutOut2Color(const CZelColor& color) override { mValues.cutOut2Color = color; }
    bool getXInvert() const override { return mValues.xInvert; }
    void setXInvert(bool flag) override { mValues.xInvert = flag; }
    bool getYInvert() const override { return mValues.yInvert; }
    void setYInvert(bool flag) override { mValues.yInvert = flag; }
    std::int32_t getProjection() const override { return mValues.projection; }
    void setProjection(std::int32_t value) override { mValues.projection = value; }
    bool getVisible() const override { return mValues.visible; }
    void setVisible(bool flag) override { mValues.visible = flag; }
    bool getMixFlag() const override { return mValues.mixFlag; }
    void setMixFlag(bool flag) override { mValues.mixFlag = flag; }
    CZelColor getMixColor() const override { return mValues.mixColor; }
    void setMixColor(const CZelColor& color) override { mValues.mixColor = color; }
    double getMixValue() const override { return mValues.mixValue; }
    void setMixValue(double value) override { mValues.mixValue = kMixValue.clip(value); }
    bool getCutAlpha() const override { return mValues.cutAlpha; }
    void setCutAlpha(bool flag) override { mValues.cutAlpha = flag; }
    bool getXMirror() const override { return mValues.xMirror; }
    void setXMirror(bool flag) override { mValues.xMirror = flag; }
    bool getYMirror() const override { return mValues.yMirror; }
    void setYMirror(bool flag) override { mValues.yMirror = flag; }
    bool getAlphaBump() const override { return mValues.alphaBump; }
    void setAlphaBump(bool flag) override { mValues.alphaBump = flag; }
    bool getAlphaTransparency() const override { return mValues.alphaTransparency; }
    void setAlphaTransparency(bool flag) override { mValues.alphaTransparency = flag; }
    bool getMIPMAP() const override { return mValues.mipmap; }
    void setMIPMAP(bool flag) override { mValues.mipmap = flag; }
    bool getTrilinearFilter() const override { return mValues.trilinearFilter; }
    void setTrilinearFilter(bool flag) override { mValues.trilinearFilter = flag; }
    void setDisplayMode(bool flag) override { mValues.displayMode = flag; }
    bool getDisplayMode() const override { return mValues.displayMode; }
    double getBrightness() const override { return mValues.brightness; }
    void setBrightness(double value) override { mValues.brightness = value; }
    double getContrast() const override { return mValues.contrast; }
    void setContrast(double value) override { mValues.contrast = value; }
    std::int32_t getFrame() const override { return mValues.frame; }
    void setFrame(std::int32_t value) override { mValues.frame = value; }
    std::int32_t getMovieLength() const override { return mValues.movieLength; }
    void setMovieLength(std::int32_t value) override { mValues.movieLength = value; }
    double getNormalMap() const override { return mValues.normalMap; }
    void setNormalMap(double value) override { mValues.normalMap = value; }
    const CZelUUID& getMappingNodeId() const override { return mValues.mappingNodeId; }
    void setMappingNodeId(const CZelUUID& id) override { mValues.mappingNodeId = id; }
    const CZelUUID& getParentMappingNodeId() const override { return mValues.parentMappingNodeId; }
    void setParentMappingNodeId(const CZelUUID& id) override { mValues.parentMappingNodeId = id; }
    OrvaneXML::XIXMLElement* putInXML(OrvaneXML::XIXMLElement* element) override
    {
        return putNodeInXML(element);
    }
    bool initWithXML(OrvaneXML::XIXMLElement* element) override { return initNodeWithXML(element); }
    bool getGlossyActivated() const override { return mValues.glossyActivated; }
    void setGlossyActivated(bool flag) override { mValues.glossyActivated = flag; }

    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const override;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in) override;
    void checkSingleType(eNodeType type) const override;

private:
    void getMapsFrom(const CZelXMLGet& in);
    void getLinkedMapsFrom(const CZelXMLGet& in);
    void getIdentitiesFrom(CZelXMLIO& io, const CZelXMLGet& in);

    CZelMultiMaps mMaps{this};
    std::vector<CZelUUID> mLinkedMaps;
    CMappingValues mValues;
};

} // namespace OvZel
