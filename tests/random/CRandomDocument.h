#pragma once

#include "tests/random/CRandomValues.h"

#include <zel/IZelMgr.h>
#include <zel/xml/XIXMLElement.h>

namespace ZelTest {

/// Fills documents with random content: every list, every class, every value that a client can set
/// and a file holds, within its range. What a file does not hold, or a load does not take, keeps
/// the value of a new object. One seed gives the same content on every machine.
class CRandomDocument {
public:
    explicit CRandomDocument(std::uint64_t seed) : random(seed) {}

    void fill(OvZel::IZelMgr& document);

    // Materials
    void fill(OvZel::IZelProperty& property);
    void fill(OvZel::IZelTCE& material);
    void fill(OvZel::ITCENode& node);
    void fill(OvZel::IChessNode& node);
    void fill(OvZel::IMappingNode& node);
    void fill(OvZel::ITurbulenceNode& node);
    void fill(OvZel::ILeafNode& node);
    void fill(OvZel::IFresnelNode& node);
    void fill(OvZel::IFresnelDiffuseNode& node);
    void fill(OvZel::IGlazingNode& node);
    void fill(OvZel::ICustomNode& node);
    void fill(OvZel::IAltitudeNode& node);
    void fill(OvZel::IMultiTextureNode& node);
    void fill(OvZel::IWangTilesNode& node);
    void fill(OvZel::IMatteShadowNode& node);
    void fill(OvZel::IZelMultiMaps& maps);
    void fill(OvZel::IZelSubPart& part);
    void fill(OvZel::ITable& table);

    // Light and surroundings
    void fill(OvZel::IZelLight& light);
    void fill(OvZel::IZelLightsGroup& group);
    void fill(OvZel::IZelLensFlare& flare);
    void fill(OvZel::IZelHeliodon& heliodon);
    void fill(OvZel::IZelTime& time);
    void fill(OvZel::IZelSkylight& sky);
    void fill(OvZel::IZelClouds& clouds);
    void fill(OvZel::IZelFog& fog);
    void fill(OvZel::IZelEnvironment& environment);
    void fill(OvZel::IZelBackgroundPicture& picture);
    void fill(OvZel::IZelForeground& foreground);
    void fill(OvZel::IZelGround& ground);

    // Objects
    void fill(OvZel::IZelZelObjectDefinition& definition);
    void fill(OvZel::IZelZelObjectDefinition::IZelZelObjectSetup& setup);
    void fill(OvZel::IZel3DPlant& plant);
    void fill(OvZel::IZel3DPlant::IPlantSetUp& setup);
    void fill(OvZel::IZelAnimatedObject& character);
    void fill(OvZel::IZelAnimatedObject::IZelTake& take);
    void fill(OvZel::IZelExternalDefinition& definition);
    void fill(OvZel::IZelObjectInstance& instance);
    void fill(OvZel::IZelZelObjectInstance& delegate);
    void fill(OvZel::IZel3DPlantRef& delegate);
    void fill(OvZel::IZelBBObjectInstance& delegate);
    void fill(OvZel::IZelAnimatedObjectInstance& delegate);
    void fill(OvZel::IZelInternalComponentInstance& delegate);
    void fill(OvZel::IZelGroupInstances& delegate);
    void fill(OvZel::IZelLayer& layer);
    void fill(OvZel::IZelLayerInfo& info);
    void fill(OvZel::IZelBBMgrData& billboard);
    void fill(OvZel::IZelBillboard& billboard);
    void fill(OvZel::IZelBillboard::IZelBBName& name);
    void fill(OvZel::IZelQuad& quad);
    void fill(OvZel::IZelTexture& texture);

    // Views and rendering
    void fill(OvZel::IZelCamera& camera);
    void fill(OvZel::IZelParallelView& view);
    void fill(OvZel::IZelViewObject& view);
    void fill(OvZel::IZelPanoramaV2& panorama);
    void fill(OvZel::IZelPanoNodeV2& node);
    void fill(OvZel::IZelViewInfo& info);
    void fill(OvZel::IZelFilters& filters);
    void fill(OvZel::IZelCameraLight& light);
    void fill(OvZel::IZelDepthOfField& depth);
    void fill(OvZel::IZelClippingBox& box);
    void fill(OvZel::IZelLaser& laser);
    void fill(OvZel::IZelInsertionObject& insertion);
    void fill(OvZel::IZelViewOpt& options);
    void fill(OvZel::IZelRenderingOpt& options);
    void fill(OvZel::IZelCompressionOpt& options);
    void fill(OvZel::IZelEngineOptions& options);
    void fill(OvZel::CZelRenderParameters& parameters);

    // Animation
    void fill(OvZel::IZelAnimation& animation);
    void fill(OvZel::IZelCameraPath& path);
    void fill(OvZel::IZelCamKey& key);
    void fill(OvZel::IZel3DPath& path);
    void fill(OvZel::IZelBezierPoint& point);
    void fill(OvZel::IZelScenario& scenario);
    void fill(OvZel::IZelSequence& sequence);
    void fill(OvZel::IZelAnimatedElement& element);
    void fill(OvZel::IZelInterpolatedValue& value);
    void fill(OvZel::IZelKeyFrame& key);
    void fill(OvZel::IZelSnd& sound);
    void fill(OvZel::IZelScenarioTimeGuide& guide);

    // Plain data
    void fill(OvZel::IZelImage& image);
    void fill(OvZel::IZelPolygon& polygon);
    void fill(OvZel::IZelPolygon::IZelHole& hole);
    void fill(OvZel::CZelVertex& vertex);
    void fill(OvZel::CZelPoint& point);
    void fill(OvZel::CZelUUID& id);
    void fill(double& value);
    void fill(OvZel::IZelString& text);
    /// Elements, attributes, texts, comments and instructions that nobody knows.
    void fill(OrvaneXML::XIXMLElement& element, int depth = 2);

    CRandomValues random;

private:
    /// Up to three new objects at the end of the list.
    template <class T>
    void extend(OvZel::TZelObjectMgr<T>& list)
    {
        for (std::uint32_t left = random.below(4); left > 0; --left)
            fill(*list.newZelObject(-1));
    }

    void fillBasic(OvZel::IZelBasic& object);
    void fillId(OvZel::IZelBasic& object);
    void fillName(OvZel::IZelBasic& object);
    void fillUIValue(OvZel::IZelBasic& object);
    void fillView(OvZel::IZelViewBasic& view);
    void fillChildren(OvZel::IZelTCE& material, OvZel::ITCENode& parent, int depth);
    OvZel::ITCENode* newNode(OvZel::IZelTCE& material, std::int32_t type);
    void fillDelegate(OvZel::IZelObjectInstance& instance);
    void fillQuality(OvZel::IZelRenderingOpt& options);
    void fillValue(OvZel::IZelKeyFrame::uValue& value, std::int32_t type);
    void fillMesh(OvZel::TZelObjectMgr<OvZel::CZelPoint>& points,
                  OvZel::TZelObjectMgr<OvZel::IZelPolygon>& polygons);
    void fillRecords(OvZel::IZelMgr& document);
    void fillLists(OvZel::IZelMgr& document);
};

} // namespace ZelTest
