#include "materials/CProperty.h"

#include "core/CBaseObjectMgr.h"
#include "core/TObject2Mgr.h"
#include "tests/support/CTestProperty.h"
#include "tests/support/messageOf.h"
#include "tests/support/textOf.h"

#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>
#include <zel/IZelMultiMaps.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace {

using namespace OvZel;
using ZelTest::CTestProperty;
using ZelTest::textOf;

using CMessages = std::vector<std::string>;

constexpr CZelColor kColor = CZelColor::rgb(1, 2, 3);
constexpr CZelColor kBlack;
constexpr CZelUUID kId{"00112233445566778899AABBCCDDEEFF"};
constexpr CZelUUID kOtherId{"FFEEDDCCBBAA99887766554433221100"};
const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(Property, NewOneHasItsDefaultsAndAnEmptyTree)
{
    const CTestProperty property;
    EXPECT_STREQ(property->getName(), "Material #0");
    EXPECT_EQ(property->getUIValue(), 0u);
    EXPECT_TRUE(property->getVisible());
    EXPECT_TRUE(property->getCastShadow());
    EXPECT_TRUE(property->getReceiveShadow());
    EXPECT_FALSE(property->getBillboard());
    EXPECT_FALSE(property->getUVDefined());
    EXPECT_EQ(property->getSmooth(), 1.0);
    EXPECT_EQ(property->getBevel(), 0.0);
    EXPECT_EQ(property->getScale(), 1.0);
    EXPECT_TRUE(property->getOverloadPropIndex().isNull());
    EXPECT_TRUE(property->getOverloadId().isNull());
    ASSERT_NE(property->getTCE(), nullptr);
    EXPECT_STREQ(property->getShaderUrl(), "");
    EXPECT_EQ(property.root().getNbChilds(), 0);
}

TEST(Property, WithoutNodesTheGettersAnswerFixedValuesAndMakeNone)
{
    const CTestProperty property;
    EXPECT_EQ(property->getDiffuseColor(), CZelColor::rgb(100, 100, 100));
    EXPECT_EQ(property->getSpecularColor(), kBlack);
    EXPECT_EQ(property->getGlossy(), 6.0);
    EXPECT_EQ(property->getTransparentColor(), kBlack);
    EXPECT_EQ(property->getReflectionColor(), kBlack);
    EXPECT_EQ(property->getNeonColor(), kBlack);
    EXPECT_EQ(property->getNeonValue(), 0.0);
    EXPECT_EQ(property->getRefraction(), 0.0);
    EXPECT_EQ(property->getEmittingColor(), kBlack);
    EXPECT_EQ(property->getEmittingPower(), 0.0);
    EXPECT_EQ(property->getReflectionLimit(), 0.0);
    EXPECT_STREQ(property->getDiffuseMapUrl(), "");
    EXPECT_STREQ(property->getNormalMapUrl(), "");
    EXPECT_STREQ(property->getBumpMapUrl(), "");
    EXPECT_EQ(property->getProjection(), 0xFFFFFFFF);
    EXPECT_FALSE(property->getMapCutAlpha());
    EXPECT_FALSE(property->getMapDisplayMode());
    EXPECT_EQ(property->getMapNormalMapValue(), 0.0);
    EXPECT_EQ(property->getMappingNode(0), nullptr);
    EXPECT_EQ(property.root().getNbChilds(), 0);
}

TEST(Property, WithoutAMappingNodeOutArgumentsGetFixedValuesOrNone)
{
    const CTestProperty property;
    bool x = true, y = true;
    EXPECT_FALSE(property->getMapRepeat(&x, &y));
    EXPECT_FALSE(x || y);
    x = y = true;
    EXPECT_FALSE(property->getMapInvert(&x, &y));
    EXPECT_FALSE(x || y);
    double height = 5.0, width = 5.0, angle = 5.0;
    EXPECT_FALSE(property->getMapSize(&height, &width));
    EXPECT_EQ(height, 1.0);
    EXPECT_EQ(width, 1.0);
    EXPECT_FALSE(property->getMapAngle(&angle));
    EXPECT_EQ(angle, 0.0);

    CZelPoint points[3] = {{1, 1, 1}, {2, 2, 2}, {3, 3, 3}};
    EXPECT_FALSE(property->getMappingAxes(&points[0], &points[1], &points[2]));
    EXPECT_EQ(points[0].x + points[1].x + points[2].x, 6.0);
    CZelColor color = kColor;
    EXPECT_FALSE(property->getMapTransparentColor(&color));
    EXPECT_FALSE(property->getMapReflectionColor(&color));
    EXPECT_EQ(color, kColor);
    double number = 5.0;
    EXPECT_FALSE(property->getMapGlossy(&number));
    EXPECT_FALSE(property->getMapBump(&number));
    EXPECT_EQ(number, 5.0);
    EXPECT_EQ(property.root().getNbChilds(), 0);
}

TEST(Property, OutArgumentsMayBeNull)
{
    const CTestProperty property;
    const auto ask = [&] {
        return std::vector<bool>{property->getMappingAxes(nullptr, nullptr, nullptr),
                                 property->getMapTransparentColor(nullptr),
                                 property->getMapRepeat(nullptr, nullptr),
                                 property->getMapInvert(nullptr, nullptr),
                                 property->getMapSize(nullptr, nullptr),
                                 property->getMapAngle(nullptr),
                                 property->getMapReflectionColor(nullptr),
                                 property->getMapGlossy(nullptr),
                                 property->getMapBump(nullptr)};
    };
    EXPECT_EQ(ask(), std::vector<bool>(9, false));
    property->setMapAngle(1.0);
    EXPECT_EQ(ask(), std::vector<bool>(9, true));
}

/// Something that is set through the facade, what it gives back, and the node's own value.
struct CCase {
    const char* name;
    std::function<void(CProperty&)> set;
    std::function<bool(const CProperty&)> isSet;
    std::function<bool(ITCENode&)> isInNode;
};

TEST(Property, LeafValuesGoToALeafThatTheFirstWriteMakes)
{
    const CCase cases[] = {
        {"diffuse", [](auto& p) { p.setDiffuseColor(kColor); },
         [](auto& p) { return p.getDiffuseColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getDiffuse() == kColor; }},
        {"specular", [](auto& p) { p.setSpecularColor(kColor); },
         [](auto& p) { return p.getSpecularColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getSpecular() == kColor; }},
        {"glossy", [](auto& p) { p.setGlossy(12.0); },
         [](auto& p) { return p.getGlossy() == 12.0; },
         [](auto& n) { return n.asLeafNode()->getGlossy() == 12.0; }},
        {"transparent", [](auto& p) { p.setTransparentColor(kColor); },
         [](auto& p) { return p.getTransparentColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getTransparent() == kColor; }},
        {"reflection", [](auto& p) { p.setReflectionColor(kColor); },
         [](auto& p) { return p.getReflectionColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getReflection() == kColor; }},
        {"neon color", [](auto& p) { p.setNeonColor(kColor); },
         [](auto& p) { return p.getNeonColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getNeonColor() == kColor; }},
        {"neon value", [](auto& p) { p.setNeonValue(12.0); },
         [](auto& p) { return p.getNeonValue() == 12.0; },
         [](auto& n) { return n.asLeafNode()->getNeonValue() == 12.0; }},
        {"refraction", [](auto& p) { p.setRefraction(2.0); },
         [](auto& p) { return p.getRefraction() == 2.0; },
         [](auto& n) { return n.asLeafNode()->getRefraction() == 2.0; }},
        {"emitting color", [](auto& p) { p.setEmittingColor(kColor); },
         [](auto& p) { return p.getEmittingColor() == kColor; },
         [](auto& n) { return n.asLeafNode()->getEmittingColor() == kColor; }},
        {"emitting power", [](auto& p) { p.setEmittingPower(-3.0); },
         [](auto& p) { return p.getEmittingPower() == -3.0; },
         [](auto& n) { return n.asLeafNode()->getEmittingPower() == -3.0; }},
        {"reflection limit", [](auto& p) { p.setReflectionLimit(-3.0); },
         [](auto& p) { return p.getReflectionLimit() == -3.0; },
         [](auto& n) { return n.asLeafNode()->getReflectionLimit() == -3.0; }},
    };
    for (const CCase& each : cases) {
        SCOPED_TRACE(each.name);
        const CTestProperty property;
        each.set(*property);
        ASSERT_EQ(property.chain(), "L");
        EXPECT_TRUE(each.isSet(*property));
        EXPECT_TRUE(each.isInNode(*property.at(0)));
        const CZelUUID id = property.at(0)->getId();
        each.set(*property);
        EXPECT_EQ(property.chain(), "L");
        EXPECT_EQ(property.at(0)->getId(), id) << "no second leaf";
    }
}

TEST(Property, MappingValuesGoToAMappingNodeThatTheFirstWriteMakesWithALeaf)
{
    const CCase cases[] = {
        {"diffuse map", [](auto& p) { p.setDiffuseMapUrl("a.jpg"); },
         [](auto& p) { return std::string("a.jpg") == p.getDiffuseMapUrl(); },
         [](auto& n) { return std::string("a.jpg") == n.asMappingNode()->getMaps()->getURL(1); }},
        {"normal map", [](auto& p) { p.setNormalMapUrl("a.jpg"); },
         [](auto& p) { return std::string("a.jpg") == p.getNormalMapUrl(); },
         [](auto& n) { return std::string("a.jpg") == n.asMappingNode()->getMaps()->getURL(8); }},
        {"bump map", [](auto& p) { p.setBumpMapUrl("a.jpg"); },
         [](auto& p) { return std::string("a.jpg") == p.getBumpMapUrl(); },
         [](auto& n) { return std::string("a.jpg") == n.asMappingNode()->getMaps()->getURL(7); }},
        {"transparent", [](auto& p) { p.setMapTransparentColor(kColor); },
         [](auto& p) {
             CZelColor color;
             return p.getMapTransparentColor(&color) && color == kColor;
         },
         [](auto& n) { return n.asMappingNode()->getTransparent() == kColor; }},
        {"reflection", [](auto& p) { p.setMapReflectionColor(kColor); },
         [](auto& p) {
             CZelColor color;
             return p.getMapReflectionColor(&color) && color == kColor;
         },
         [](auto& n) { return n.asMappingNode()->getReflection() == kColor; }},
        {"repeat x", [](auto& p) { p.setMapRepeat(true, false); },
         [](auto& p) {
             bool x = false, y = true;
             return p.getMapRepeat(&x, &y) && x && !y;
         },
         [](auto& n) {
             return n.asMappingNode()->getXRepeat() && !n.asMappingNode()->getYRepeat();
         }},
        {"repeat y", [](auto& p) { p.setMapRepeat(false, true); },
         [](auto& p) {
             bool x = true, y = false;
             return p.getMapRepeat(&x, &y) && !x && y;
         },
         [](auto& n) {
             return !n.asMappingNode()->getXRepeat() && n.asMappingNode()->getYRepeat();
         }},
        {"invert x", [](auto& p) { p.setMapInvert(true, false); },
         [](auto& p) {
             bool x = false, y = true;
             return p.getMapInvert(&x, &y) && x && !y;
         },
         [](auto& n) {
             return n.asMappingNode()->getXInvert() && !n.asMappingNode()->getYInvert();
         }},
        {"invert y", [](auto& p) { p.setMapInvert(false, true); },
         [](auto& p) {
             bool x = true, y = false;
             return p.getMapInvert(&x, &y) && !x && y;
         },
         [](auto& n) {
             return !n.asMappingNode()->getXInvert() && n.asMappingNode()->getYInvert();
         }},
        {"size", [](auto& p) { p.setMapSize(3.0, 4.0); },
         [](auto& p) {
             double height = 0.0, width = 0.0;
             return p.getMapSize(&height, &width) && height == 3.0 && width == 4.0;
         },
         [](auto& n) {
             return n.asMappingNode()->getHeight() == 3.0 && n.asMappingNode()->getWidth() == 4.0;
         }},
        {"angle", [](auto& p) { p.setMapAngle(3.0); },
         [](auto& p) {
             double angle = 0.0;
             return p.getMapAngle(&angle) && angle == 3.0;
         },
         [](auto& n) { return n.asMappingNode()->getAngle() == 3.0; }},
        {"cut alpha", [](auto& p) { p.setMapCutAlpha(true); },
         [](auto& p) { return p.getMapCutAlpha(); },
         [](auto& n) { return n.asMappingNode()->getCutAlpha(); }},
        {"display mode", [](auto& p) { p.setMapDisplayMode(true); },
         [](auto& p) { return p.getMapDisplayMode(); },
         [](auto& n) { return n.asMappingNode()->getDisplayMode(); }},
        {"normal map value", [](auto& p) { p.setMapNormalMapValue(3.0); },
         [](auto& p) { return p.getMapNormalMapValue() == 3.0; },
         [](auto& n) { return n.asMappingNode()->getNormalMap() == 3.0; }},
        {"glossy", [](auto& p) { p.setMapGlossy(3.0); },
         [](auto& p) {
             double glossy = 0.0;
             return p.getMapGlossy(&glossy) && glossy == 3.0;
         },
         [](auto& n) { return n.asMappingNode()->getGlossy() == 3.0; }},
        {"bump", [](auto& p) { p.setMapBump(-3.0); },
         [](auto& p) {
             double bump = 0.0;
             return p.getMapBump(&bump) && bump == -3.0;
         },
         [](auto& n) { return n.asMappingNode()->getBump() == -3.0; }},
    };
    for (const CCase& each : cases) {
        SCOPED_TRACE(each.name);
        const CTestProperty property;
        each.set(*property);
        ASSERT_EQ(property.chain(), "mL");
        EXPECT_TRUE(each.isSet(*property));
        EXPECT_TRUE(each.isInNode(*property.at(0)));
        each.set(*property);
        EXPECT_EQ(property.chain(), "mL") << "no second node";
    }
}

TEST(Property, LimitsAreStoredInSilence)
{
    const CTestProperty property;
    struct {
        const char* name;
        void (CProperty::*set)(double);
        double (CProperty::*get)() const;
        double lowest, highest; // NaN without a limit there
    } cases[] = {
        {"smooth", &CProperty::setSmooth, &CProperty::getSmooth, 0.01, 1.0},
        {"bevel", &CProperty::setBevel, &CProperty::getBevel, 0.0, 0.5},
        {"scale", &CProperty::setScale, &CProperty::getScale, 0.0, kNaN},
        {"glossy", &CProperty::setGlossy, &CProperty::getGlossy, 0.0, 1000.0},
        {"neon", &CProperty::setNeonValue, &CProperty::getNeonValue, 0.0, kNaN},
        {"refraction", &CProperty::setRefraction, &CProperty::getRefraction, 0.0, 10.0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const auto kept = [&](double given) {
            ((*property).*each.set)(given);
            return ((*property).*each.get)();
        };
        const bool hasTop = !std::isnan(each.highest);
        EXPECT_EQ(kept(each.lowest), each.lowest);
        EXPECT_EQ(kept(each.lowest - 0.005), each.lowest);
        EXPECT_EQ(kept(-1.0), each.lowest);
        EXPECT_EQ(kept(kNaN), each.lowest);
        EXPECT_EQ(kept(each.lowest + 0.25), each.lowest + 0.25);
        EXPECT_EQ(kept(1e12), hasTop ? each.highest : 1e12);
        if (hasTop) {
            EXPECT_EQ(kept(each.highest), each.highest);
            EXPECT_EQ(kept(each.highest + 0.1), each.highest);
        }
    }
    double glossy = 0.0;
    property->setMapGlossy(2000.0);
    property->getMapGlossy(&glossy);
    EXPECT_EQ(glossy, 1000.0);
    property->setMapGlossy(-1.0);
    property->getMapGlossy(&glossy);
    EXPECT_EQ(glossy, 0.0);
    auto& document = const_cast<ZelTest::CTestDocument&>(property.document);
    EXPECT_EQ(document.takeMessages(), CMessages());
}

TEST(Property, TheFirstLeafValueChangesWhatGlossyAndRefractionAnswer)
{
    const CTestProperty property;
    EXPECT_EQ(property->getGlossy(), 6.0);
    EXPECT_EQ(property->getRefraction(), 0.0);
    property->setNeonColor(kColor);
    EXPECT_EQ(property->getGlossy(), 1000.0);
    EXPECT_EQ(property->getRefraction(), 1.0);
}

TEST(Property, ProjectionsHaveNumbersOfTheirOwn)
{
    const struct {
        std::uint32_t facade;
        std::int32_t node;
    } cases[] = {{0, 1}, {1, 8}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 0}, {7, 6}, {8, 7}};
    for (const auto& [facade, node] : cases) {
        const CTestProperty property;
        property->setProjection(facade);
        ASSERT_EQ(property.chain(), "mL");
        EXPECT_EQ(property->getMappingNode(0)->getProjection(), node) << facade;
        EXPECT_EQ(property->getProjection(), facade);
    }
}

TEST(Property, AnUnknownProjectionOnlyMakesTheNode)
{
    for (const std::uint32_t unknown : {9u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        const CTestProperty property;
        property->setProjection(unknown);
        EXPECT_EQ(property.chain(), "mL");
        EXPECT_EQ(property->getMappingNode(0)->getProjection(), 5);
        for (const std::int32_t stored : {9, -1}) {
            property->getMappingNode(0)->setProjection(stored);
            EXPECT_EQ(property->getProjection(), 0xFFFFFFFF);
        }
    }
}

TEST(Property, MappingAxesSetTheNormalToo)
{
    const CTestProperty property;
    property->setMappingAxes({1, 2, 3}, {2, 0, 0}, {0, 3, 0});
    ASSERT_EQ(property.chain(), "mL");
    const IMappingNode& mapping = *property->getMappingNode(0);
    EXPECT_EQ(mapping.getNormal().x, 0.0);
    EXPECT_EQ(mapping.getNormal().y, 0.0);
    EXPECT_EQ(mapping.getNormal().z, 6.0) << "not normalised";
    property->setMappingAxes({1, 2, 3}, {1, 2, 3}, {4, 5, 7});
    EXPECT_EQ(mapping.getNormal().x, -1.0);
    EXPECT_EQ(mapping.getNormal().y, 5.0);
    EXPECT_EQ(mapping.getNormal().z, -3.0);

    CZelPoint origin, xAxis, yAxis;
    EXPECT_TRUE(property->getMappingAxes(&origin, &xAxis, &yAxis));
    EXPECT_EQ(origin.y, 2.0);
    EXPECT_EQ(xAxis.z, 3.0);
    EXPECT_EQ(yAxis.z, 7.0);
}

TEST(Property, TheDefaultAxesTurnTheNormalAround)
{
    const CTestProperty property;
    property->setMapAngle(0.0);
    const IMappingNode& mapping = *property->getMappingNode(0);
    EXPECT_EQ(mapping.getNormal().z, -1.0);
    property->setMappingAxes(mapping.getOrigin(), mapping.getXAxis(), mapping.getYAxis());
    EXPECT_EQ(mapping.getNormal().z, 1.0);
    EXPECT_EQ(mapping.getXAxis().x, -1.0);
}

TEST(Property, TheReflectionLimitLivesInTheMappingNodeIfThereIsOne)
{
    const CTestProperty property;
    property->setReflectionLimit(1.0);
    EXPECT_EQ(property.chain(), "L");
    property->setMapAngle(0.0);
    EXPECT_EQ(property->getReflectionLimit(), 0.0) << "now that of the mapping node";
    property->setReflectionLimit(2.0);
    EXPECT_EQ(property->getMappingNode(0)->getReflectionLimit(), 2.0);
    EXPECT_EQ(property.at(1)->asLeafNode()->getReflectionLimit(), 1.0);
    EXPECT_EQ(property->getReflectionLimit(), 2.0);
}

TEST(Property, NullTextsCountAsEmpty)
{
    const CTestProperty property;
    property->setDiffuseMapUrl("a");
    property->setDiffuseMapUrl(nullptr);
    EXPECT_STREQ(property->getDiffuseMapUrl(), "");
}

TEST(Property, CopyTakesValuesAndTreeButNotTheIdentity)
{
    const CTestProperty source, copy;
    source->setName("Wood");
    source->setUIValue(7);
    source->setVisible(false);
    source->setCastShadow(false);
    source->setReceiveShadow(false);
    source->setBillboard(true);
    source->setUVDefined(true);
    source->setSmooth(0.5);
    source->setBevel(0.25);
    source->setScale(2.0);
    source->setOverloadPropIndex(kId);
    source->setOverloadId(kOtherId);
    source->setMapAngle(3.0);
    source->setDiffuseColor(kColor);
    source->getTCE()->setUrl("file:///oak");
    copy->setMapAngle(9.0);
    const CZelUUID id = *copy->getId();

    ASSERT_TRUE(copy->copyFrom(&*source));
    EXPECT_STREQ(copy->getName(), "Wood");
    EXPECT_FALSE(copy->getVisible());
    EXPECT_FALSE(copy->getCastShadow());
    EXPECT_FALSE(copy->getReceiveShadow());
    EXPECT_TRUE(copy->getBillboard());
    EXPECT_TRUE(copy->getUVDefined());
    EXPECT_EQ(copy->getSmooth(), 0.5);
    EXPECT_EQ(copy->getBevel(), 0.25);
    EXPECT_EQ(copy->getScale(), 2.0);
    EXPECT_EQ(copy->getOverloadPropIndex(), kId);
    EXPECT_EQ(copy->getOverloadId(), kOtherId);
    EXPECT_STREQ(copy->getShaderUrl(), "file:///oak");
    EXPECT_EQ(copy->getDiffuseColor(), kColor);
    EXPECT_EQ(copy.chain(), "mL");
    EXPECT_EQ(copy.at(0)->getId(), source.at(0)->getId());
    EXPECT_NE(copy.at(0), source.at(0));
    EXPECT_EQ(copy.at(0)->getParent(), &copy.root());
    EXPECT_EQ(*copy->getId(), id);
    EXPECT_EQ(copy->getUIValue(), 0u);
}

TEST(Property, CopyOfItselfChangesNothing)
{
    const CTestProperty property;
    property->setName("Wood");
    property->setMapAngle(3.0);
    ASSERT_TRUE(property->copyFrom(&*property));
    EXPECT_STREQ(property->getName(), "Wood");
    EXPECT_EQ(property.chain(), "mL");
    EXPECT_EQ(property.at(0)->asMappingNode()->getAngle(), 3.0);
}

TEST(Property, CopyOfNothingAndOfAnEmptyTreeIsRefused)
{
    const CTestProperty empty;
    empty->setName("Empty");
    empty->setSmooth(0.5);
    empty->getTCE()->setUrl("file:///oak");
    const IZelProperty* sources[] = {nullptr, &*empty};
    for (const IZelProperty* source : sources) {
        CTestProperty copy;
        copy->setDiffuseColor(kColor);
        EXPECT_FALSE(copy->copyFrom(source));
        EXPECT_EQ(copy.document.takeMessages(),
                  CMessages{"Can load property from another property"});
        EXPECT_STREQ(copy->getName(), "Material #0");
        EXPECT_STREQ(copy->getShaderUrl(), "");
        EXPECT_EQ(copy->getSmooth(), 1.0);
        EXPECT_EQ(copy->getDiffuseColor(), kColor);
    }
}

TEST(Property, AnEmptyShaderUrlEmptiesTheStoredOne)
{
    for (const char* url : {"", static_cast<const char*>(nullptr)}) {
        const CTestProperty property;
        property->getTCE()->setUrl("file:///oak");
        EXPECT_TRUE(property->setShaderUrl(url, nullptr));
        EXPECT_STREQ(property->getShaderUrl(), "");
    }
}

TEST(Property, WithoutADocumentAShaderUrlIsNotStored)
{
    CTestProperty property;
    property->getTCE()->setUrl("file:///oak");
    property.document.die();
    EXPECT_FALSE(property->setShaderUrl("file:///ash", nullptr));
    EXPECT_STREQ(property->getShaderUrl(), "");
}

TEST(Property, NeedsAnOwner)
{
    EXPECT_EQ(ZelTest::messageOf([] { const CProperty property(nullptr); }),
              "TZelWeakPtr::getSharedPtr - Shared pointer is NULL");
}

TEST(Property, ItsTreeOutlivesItButBelongsToNoDocument)
{
    CTestProperty property;
    const TZelComPtr<CZelTCE> tree(property->getTCE());
    tree->reportWarning("before");
    EXPECT_EQ(property.document.takeMessages(), CMessages{"before"});
    property.release();
    tree->reportWarning("after");
    EXPECT_EQ(property.document.takeMessages(), CMessages());
    EXPECT_EQ(tree->getMgrRef(), nullptr);
}

TEST(Property, StandsInAList)
{
    ZelTest::CTestDocument document;
    const TZelComPtr<TObject2Mgr<CProperty, IZelProperty>> list(
        new TObject2Mgr<CProperty, IZelProperty>(document.ref()));
    ASSERT_NE(list->newZelObject(-1), nullptr);
    EXPECT_EQ(textOf(*list->getObjectIID()), "CD5B3D7D4175487F9E6AE05DEFC83B5C");
    EXPECT_EQ(list->at(0)->getMgrRef(), document.ref());
    EXPECT_EQ(list->getZelObject(1), nullptr);
    list->removeObject(1);
    EXPECT_EQ(document.takeMessages(),
              (CMessages{"getZelObject: Bad index value", "removeObject: Bad index value"}));
}

} // namespace
