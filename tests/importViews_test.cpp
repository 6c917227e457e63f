#include "tests/support/CImportPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Views of every kind in the reference import, and what they bring along.

namespace {

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kCameras = 0x080;
constexpr std::int32_t kPanoramas = 0x400;
constexpr std::int32_t kAllViews = 0xF80;

/// One of each kind; the panorama has a node. Sequences are the last.
std::vector<IZelViewBasic*> addViews(IZelMgr& document, const char* name)
{
    IZelPanoramaV2& panorama = addView(document.getPanoramas(), name);
    panorama.getNodes()->newZelObject(-1);
    return {&addView(document.getCameras(), name), &addView(document.getParallelViews(), name),
            &addView(document.getViewObjects(), name), &panorama,
            &addView(firstScenario(document).getSequences(), name)};
}

struct ImportViews : testing::Test, CImportPair {
    IZelMgr& to() { return *destination.get(); }
    IZelMgr& from() { return *source.get(); }
};

TEST_F(ImportViews, LayersOfTheSameNameAreTranslated)
{
    add(to().getLayers(), "Trees", idOfNumber(1));
    add(to().getLayers(), "Trees", idOfNumber(2));
    add(from().getLayers(), "Trees", idOfNumber(3));
    add(from().getLayers(), "Cars", idOfNumber(4));
    for (IZelViewBasic* view : addViews(from(), "A"))
        for (const int number : {4, 3, 9, 3})
            addId(view->getViewInfo()->getLayers(), idOfNumber(number));
    const std::vector<IZelViewBasic*> views = addViews(to(), "A");
    import(kAllViews);
    for (IZelViewBasic* view : views)
        EXPECT_THAT(idsOf(view->getViewInfo()->getLayers()),
                    ElementsAre(idOfNumber(4), idOfNumber(1), idOfNumber(9), idOfNumber(1)));
}

TEST_F(ImportViews, LayersThatInstancesBroughtAreTranslatedTo)
{
    add(from().getLayers(), "Trees", idOfNumber(3));
    add(from().getLayers(), "Trees", idOfNumber(4));
    addInstance(from(), "a", idOfNumber(10), idOfNumber(3));
    addId(addView(from().getCameras(), "A").getViewInfo()->getLayers(), idOfNumber(4));
    import(kCameras | 0x040);
    EXPECT_THAT(idsOf(to().getCameras()->getZelObject(0)->getViewInfo()->getLayers()),
                ElementsAre(idOfNumber(3)));
}

TEST_F(ImportViews, HeliodonAndGroupsComeAlong)
{
    for (int kind = 0; kind < 5; ++kind) {
        CImportPair pair;
        for (const char* name : {"A", "B"}) { // what both use comes once
            IZelViewInfo& info =
                *addViews(*pair.source.get(), name)[static_cast<std::size_t>(kind)]->getViewInfo();
            info.setHeliodonName("Sun");
            addId(info.getLightsGroups(), idOfNumber(1));
        }
        add(pair.source->getLightsGroups(), "G", idOfNumber(1));
        add(pair.source->getHeliodons(), "Sun").setNorthAngle(2.0);
        add(pair.source->getHeliodons(), "Moon");
        pair.import(kAllViews);
        EXPECT_THAT(namesOf(pair.destination->getLightsGroups()), ElementsAre("G"));
        ASSERT_THAT(namesOf(pair.destination->getHeliodons()), ElementsAre("Sun"));
        EXPECT_EQ(pair.destination->getHeliodons()->getZelObject(0)->getNorthAngle(), 2.0);
    }
}

TEST_F(ImportViews, AHeliodonOfThatNameStaysAsItIs)
{
    add(to().getHeliodons(), "Sun").setNorthAngle(1.0);
    add(from().getHeliodons(), "Sun").setNorthAngle(2.0);
    addView(from().getCameras(), "A").getViewInfo()->setHeliodonName("Sun");
    addView(from().getCameras(), "B").getViewInfo()->setHeliodonName("Nowhere");
    import(kCameras);
    EXPECT_THAT(namesOf(to().getHeliodons()), ElementsAre("Sun"));
    EXPECT_EQ(to().getHeliodons()->getZelObject(0)->getNorthAngle(), 1.0);
}

TEST_F(ImportViews, AnUnnamedHeliodonIsNotWanted)
{
    add(from().getHeliodons(), "");
    addView(from().getCameras(), "A");
    import(kCameras);
    EXPECT_THAT(namesOf(to().getHeliodons()), IsEmpty());
}

TEST_F(ImportViews, WithoutLayersInTheSourceCopiedViewsShowEveryLayer)
{
    add(to().getLayers(), "Trees", idOfNumber(1));
    add(to().getLayers(), "Cars", idOfNumber(2));
    add(to().getLayers(), "Bikes", idOfNumber(1)); // shown with the trees
    const std::vector<IZelViewBasic*> paired = addViews(to(), "A");
    const std::vector<IZelViewBasic*> untouched = addViews(to(), "B");
    for (IZelViewBasic* view : addViews(from(), "A"))
        for (const int number : {2, 7})
            addId(view->getViewInfo()->getLayers(), idOfNumber(number));
    addView(from().getCameras(), "new");
    import(kAllViews);
    for (IZelViewBasic* view : paired) {
        const std::vector<CZelUUID> ids = idsOf(view->getViewInfo()->getLayers());
        if (view == paired[3]) // the panorama
            EXPECT_THAT(ids, ElementsAre(idOfNumber(2), idOfNumber(7)));
        else
            EXPECT_THAT(ids, ElementsAre(idOfNumber(2), idOfNumber(7), idOfNumber(1)));
    }
    for (IZelViewBasic* view : untouched)
        EXPECT_THAT(idsOf(view->getViewInfo()->getLayers()), IsEmpty());
    EXPECT_THAT(idsOf(to().getCameras()->getZelObject(2)->getViewInfo()->getLayers()),
                ElementsAre(idOfNumber(1), idOfNumber(2)));
    EXPECT_EQ(to().getLayers()->getNbObjects(), 3);
}

TEST_F(ImportViews, OneLayerInTheSourceIsEnoughToShowNoMore)
{
    add(to().getLayers(), "Trees", idOfNumber(1));
    add(from().getLayers(), "Cars", idOfNumber(2));
    IZelCamera& camera = addView(to().getCameras(), "A");
    addView(from().getCameras(), "A");
    import(kCameras);
    EXPECT_THAT(idsOf(camera.getViewInfo()->getLayers()), IsEmpty());
}

TEST_F(ImportViews, IdentifiersAndGroundOfAPartnerStay)
{
    IZelCamera& camera = addView(to().getCameras(), "A");
    const CZelUUID info = idOfNumber(1);
    camera.getViewInfo()->getBasicData()->setId(&info);
    camera.getViewInfo()->setGround(idOfNumber(2));
    const CZelUUID id = idOf(camera);
    IZelViewInfo& exported = *addView(from().getCameras(), "A").getViewInfo();
    const CZelUUID other = idOfNumber(3);
    exported.getBasicData()->setId(&other);
    exported.setGround(idOfNumber(4));
    import(kCameras);
    EXPECT_EQ(idOf(camera), id);
    EXPECT_EQ(idOf(*camera.getViewInfo()), info);
    EXPECT_EQ(camera.getViewInfo()->getGround(), idOfNumber(2));
}

TEST_F(ImportViews, AnEnvironmentComesWithItsView)
{
    IZelEnvironment& environment = add(from().getEnvironments());
    environment.setName("Fog");
    addView(from().getCameras(), "A").getViewInfo()->setEnvironment(environment.getId());
    import(kCameras);
    ASSERT_EQ(to().getEnvironments()->getNbObjects(), 1);
    EXPECT_EQ(to().getEnvironments()->getZelObject(0)->getId(), environment.getId());
    EXPECT_EQ(to().getCameras()->getZelObject(0)->getViewInfo()->getEnvironment(),
              environment.getId());
}

/// A panorama of three nodes, one link for each pair of numbers; 3 is no node of it.
IZelPanoramaV2& addPanorama(IZelMgr& document, const std::vector<std::pair<int, int>>& links)
{
    IZelPanoramaV2& panorama = addView(document.getPanoramas(), "Walk");
    for (const int number : {100, 101, 102})
        add(panorama.getNodes(), "node", idOfNumber(number));
    for (const auto& [start, end] : links) {
        IZelPanoLinkV2& link = add(panorama.getLinks());
        link.setStart(idOfNumber(100 + start));
        link.setEnd(idOfNumber(100 + end));
        link.setPathId(idOfNumber(50));
    }
    return panorama;
}

TEST_F(ImportViews, APanoramasNodesLinksAndMarksAreRenewedTogether)
{
    IZelPanoramaV2& exported = addPanorama(from(), {{0, 2}, {1, 3}});
    exported.setStartNode(idOfNumber(102));
    exported.setCurrentNode(idOfNumber(101));
    exported.setFocal(33.0);
    import(kPanoramas);
    ASSERT_EQ(to().getPanoramas()->getNbObjects(), 1);
    IZelPanoramaV2& copy = *to().getPanoramas()->getZelObject(0);
    EXPECT_EQ(nameOf(copy), "Walk");
    EXPECT_EQ(copy.getFocal(), 33.0);
    std::vector<CZelUUID> nodes;
    for (std::int32_t i = 0; i < 3; ++i) {
        nodes.push_back(idOf(*copy.getNodes()->getZelObject(i)));
        EXPECT_NE(nodes.back(), idOfNumber(100 + i));
    }
    EXPECT_EQ(copy.getStartNode(), nodes[2]);
    EXPECT_EQ(copy.getCurrentNode(), nodes[1]);
    ASSERT_EQ(copy.getLinks()->getNbObjects(), 2);
    EXPECT_EQ(copy.getLinks()->getZelObject(0)->getStart(), nodes[0]);
    EXPECT_EQ(copy.getLinks()->getZelObject(0)->getEnd(), nodes[2]);
    EXPECT_EQ(copy.getLinks()->getZelObject(0)->getPathId(), idOfNumber(50));
    EXPECT_EQ(copy.getLinks()->getZelObject(1)->getStart(), nodes[1]);
    EXPECT_TRUE(copy.getLinks()->getZelObject(1)->getEnd().isNull());
    EXPECT_EQ(exported.getStartNode(), idOfNumber(102)); // the source is as it was
}

TEST_F(ImportViews, AnOlderPanoramaTakesTheNodesAndLinksOfTheNewOne)
{
    IZelPanoramaV2& partner = addPanorama(to(), {{0, 1}, {1, 2}, {2, 0}});
    const CZelUUID id = idOf(partner);
    add(partner.getNodes(), "fourth");
    IZelPanoramaV2& exported = addPanorama(from(), {{2, 1}});
    exported.setStartNode(idOfNumber(102));
    import(kPanoramas);
    ASSERT_EQ(to().getPanoramas()->getNbObjects(), 1);
    EXPECT_EQ(idOf(partner), id);
    ASSERT_EQ(partner.getNodes()->getNbObjects(), 3);
    ASSERT_EQ(partner.getLinks()->getNbObjects(), 1);
    const CZelUUID last = idOf(*partner.getNodes()->getZelObject(2));
    EXPECT_NE(last, idOfNumber(102));
    EXPECT_EQ(partner.getStartNode(), last);
    EXPECT_EQ(partner.getLinks()->getZelObject(0)->getStart(), last);
    EXPECT_EQ(partner.getLinks()->getZelObject(0)->getEnd(),
              idOf(*partner.getNodes()->getZelObject(1)));
}

TEST_F(ImportViews, MarksThatNameNoNodeBecomeNull)
{
    IZelPanoramaV2& exported = addPanorama(from(), {});
    exported.setStartNode(idOfNumber(1));
    import(kPanoramas);
    EXPECT_TRUE(to().getPanoramas()->getZelObject(0)->getStartNode().isNull());
    EXPECT_TRUE(to().getPanoramas()->getZelObject(0)->getCurrentNode().isNull());
}

TEST_F(ImportViews, APanoramaWithoutNodesIsPassedOver)
{
    IZelPanoramaV2& partner = addPanorama(to(), {{0, 1}});
    const CZelUUID node = idOf(*partner.getNodes()->getZelObject(0));
    partner.setFocal(10.0);
    addView(from().getPanoramas(), "Walk").setFocal(20.0);
    addView(from().getPanoramas(), "Other");
    import(kPanoramas);
    ASSERT_EQ(to().getPanoramas()->getNbObjects(), 1);
    EXPECT_EQ(partner.getFocal(), 10.0);
    EXPECT_EQ(idOf(*partner.getNodes()->getZelObject(0)), node);
}

} // namespace
