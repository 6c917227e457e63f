#pragma once

#include "core/CRange.h"
#include "core/TZelComPtr.h"
#include "materials/CZelTCE.h"
#include "xml/TZelXMLCOMObjLinkRef.h"

#include <zel/IZelProperty.h>

#include <limits>

namespace OvZel {

class CZelXMLAdd;
class CZelXMLGet;
class ILeafNode;

/// A material: its surface values, and the facade over its tree.
///
/// Nothing that is looked up in the tree is kept, so that a client which edits the tree sees the
/// result at once.
class CProperty : public TZelXMLCOMObjLinkRef<IZelProperty> {
public:
    static constexpr CRange kSmooth{0.01, 1.0};
    static constexpr CRange kBevel{0.0, 0.5};
    static constexpr CRange kScale{0.0, std::numeric_limits<double>::infinity()};

    /// Raises "TZelWeakPtr::getSharedPtr - Shared pointer is NULL" without an owner.
    explicit CProperty(IZelObjectLinkRef* owner);
    ~CProperty() override;

    bool getVisible() const override { return mVisible; }
    void setVisible(bool visible) override { mVisible = visible; }
    bool getCastShadow() const override { return mCastShadow; }
    void setCastShadow(bool castShadow) override { mCastShadow = castShadow; }
    double getSmooth() const override { return mSmooth; }
    void setSmooth(double smooth) override { mSmooth = kSmooth.clip(smooth); }
    double getBevel() const override { return mBevel; }
    void setBevel(double bevel) override { mBevel = kBevel.clip(bevel); }
    double getScale() const override { return mScale; }
    void setScale(double scale) override { mScale = kScale.clip(scale); }

    // CPropertyLeaf.cpp
    CZelColor getDiffuseColor() const override;
    void setDiffuseColor(const CZelColor& color) override;
    CZelColor getSpecularColor() const override;
    void setSpecularColor(const CZelColor& color) override;
    double getGlossy() const override;
    void setGlossy(double glossy) override;
    CZelColor getTransparentColor() const override;
    void setTransparentColor(const CZelColor& color) override;
    CZelColor getReflectionColor() const override;
    void setReflectionColor(const CZelColor& color) override;

    // CPropertyMapping.cpp
    const char* getDiffuseMapUrl() const override;
    void setDiffuseMapUrl(const char* url) override;
    std::uint32_t getProjection() const override;
    void setProjection(std::uint32_t projection) override;
    bool getMappingAxes(CZelPoint* origin, CZelPoint* xAxis, CZelPoint* yAxis) const override;
    void setMappingAxes(const CZelPoint& origin, const CZelPoint& xAxis,
                        const CZelPoint& yAxis) override;
    bool getMapTransparentColor(CZelColor* color) const override;
    void setMapTransparentColor(const CZelColor& color) override;
    bool getMapRepeat(bool* x, bool* y) const override;
    void setMapRepeat(bool x, bool y) override;
    bool getMapInvert(bool* x, bool* y) const override;
    void setMapInvert(bool x, bool y) override;
    bool getMapSize(double* height, double* width) const override;
    void setMapSize(double height, double width) override;
    const CZelTCE* getTCE() const override { return mTCE.get(); }
    CZelTCE* getTCE() override { return mTCE.get(); }
    bool getMapAngle(double* angle) const override;
    void setMapAngle(double angle) override;

    bool copyFrom(const IZelProperty* source) override;
    bool getBillboard() const override { return mBillboard; }
    void setBillboard(bool billboard) override { mBillboard = billboard; }

    // CPropertyLeaf.cpp
    CZelColor getNeonColor() const override;
    void setNeonColor(const CZelColor& color) override;
    double getNeonValue() const override;
    void setNeonValue(double value) override;
    double getRefraction() const override;
    void setRefraction(double refraction) override;

    const CZelUUID& getOverloadPropIndex() const override { return mOverloadPropIndex; }
    void setOverloadPropIndex(const CZelUUID& id) override { mOverloadPropIndex = id; }
    const CZelUUID& getOverloadId() const override { return mOverloadId; }
    void setOverloadId(const CZelUUID& id) override { mOverloadId = id; }
    bool getReceiveShadow() const override { return mReceiveShadow; }
    void setReceiveShadow(bool receiveShadow) override { mReceiveShadow = receiveShadow; }
    bool getUVDefined() const override { return mUVDefined; }
    void setUVDefined(bool defined) override { mUVDefined = defined; }

    bool getMapCutAlpha() const override;
    void setMapCutAlpha(bool cutAlpha) override;
    double getReflectionLimit() const override;
    void setReflectionLimit(double limit) override;
    CZelColor getEmittingColor() const override;
    void setEmittingColor(const CZelColor& color) override;
    double getEmittingPower() const override;
    void setEmittingPower(double power) override;
    void setMapDisplayMode(bool mode) override;
    bool getMapDisplayMode() const override;
    double getMapNormalMapValue() const override;
    void setMapNormalMapValue(double value) override;
    const char* getNormalMapUrl() const override;
    void setNormalMapUrl(const char* url) override;
    const char* getBumpMapUrl() const override;
    void setBumpMapUrl(const char* url) override;
    bool getMapReflectionColor(CZelColor* color) const override;
    void setMapReflectionColor(const CZelColor& color) override;
    bool getMapGlossy(double* glossy) const override;
    void setMapGlossy(double glossy) override;
    bool getMapBump(double* bump) const override;
    void setMapBump(double bump) override;

    const char* getShaderUrl() const override { return mTCE->getUrl(); }
    bool setShaderUrl(const char* url, IZelReadStream* stream) override;

    // CPropertyTree.cpp
    IMappingNode* insertMappingNode(std::int32_t index) override;
    bool removeMappingNode(std::int32_t index) override;
    const IMappingNode* getMappingNode(std::int32_t index) const override;
    IMappingNode* getMappingNode(std::int32_t index) override;

    OrvaneXML::XIXMLElement* addXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    bool getXML(CZelXMLIO& io, OrvaneXML::XIXMLElement* element) override;
    void addTo(CZelXMLIO& io, const CZelXMLAdd& out) const;
    void getFrom(CZelXMLIO& io, const CZelXMLGet& in);

private:
    /// A mapping node of the chain and the node in whose first place it stands.
    struct CPlace {
        ITCENode* parent = nullptr;
        IMappingNode* mapping = nullptr;
    };

    ITCENode& root() const;
    ILeafNode* findLeaf() const;
    ILeafNode& needLeaf();
    CPlace findMapping(std::int32_t index) const;
    IMappingNode* findMapping() const { return findMapping(0).mapping; }
    IMappingNode& needMapping();
    const char* mapUrl(std::int32_t kind) const;
    void setMapUrl(std::int32_t kind, const char* url);
    bool loadShader(IZelReadStream* stream);
    void copyValues(const CProperty& source);
    void writeNode(CZelXMLIO& io, const CZelXMLAdd& out) const;
    TZelComPtr<CTCENode> readNode(CZelXMLIO& io, const CZelXMLGet& in);

    TZelComPtr<CZelTCE> mTCE;
    bool mVisible = true;
    bool mCastShadow = true;
    bool mBillboard = false;
    double mSmooth = 1.0;
    double mBevel = 0.0;
    double mScale = 1.0;
    CZelUUID mOverloadPropIndex;
    CZelUUID mOverloadId;
    bool mReceiveShadow = true;
    bool mUVDefined = false;
};

} // namespace OvZel
