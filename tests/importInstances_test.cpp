#include "tests/support/CImportPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Layers, instances and the ground in the reference import.

namespace {

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kInstances = 0x040;

struct ImportInstances : testing::Test, CImportPair {
    IZelMgr& to() { return *destination.get(); }
    IZelMgr& from() { return *source.get(); }
    CZelUUID layer(IZelMgr& document, const char* name, int number)
    {
        return idOf(add(document.getLayers(), name, idOfNumber(number)));
    }
    IZelObjectInstance& instance(std::int32_t index)
    {
        return *destination->getObjectInstances()->getZelObject(index);
    }
    std::int32_t nbInstances() { return destination->getObjectInstances()->getNbObjects(); }
};

TEST_F(ImportInstances, ALayerOfTheSameNameStandsForTheOtherOne)
{
    const CZelUUID there = layer(to(), "Trees", 1);
    const CZelUUID here = layer(from(), "Trees", 2);
    addInstance(to(), "old", idOfNumber(10), there).setInitialAngle(1.0);
    IZelObjectInstance& exported = addInstance(from(), "new", idOfNumber(10), here);
    exported.setInitialAngle(2.0);
    import(kInstances);
    EXPECT_THAT(namesOf(to().getLayers()), ElementsAre("Trees"));
    EXPECT_THAT(namesOf(to().getObjectInstances()), ElementsAre("new"));
    EXPECT_EQ(instance(0).getInitialAngle(), 2.0);
    EXPECT_EQ(instance(0).getLayerId(), there);
    EXPECT_EQ(exported.getLayerId(), there); // the source has changed, too
}

TEST_F(ImportInstances, AMissingLayerIsMadeOnceAndCountsFromThenOn)
{
    const CZelUUID here = layer(from(), "Trees", 2);
    addInstance(from(), "a", idOfNumber(10), here).setInitialAngle(1.0);
    addInstance(from(), "b", idOfNumber(10), here).setInitialAngle(2.0);
    import(kInstances);
    ASSERT_THAT(namesOf(to().getLayers()), ElementsAre("Trees"));
    EXPECT_EQ(idOf(*to().getLayers()->getZelObject(0)), here);
    ASSERT_THAT(namesOf(to().getObjectInstances()), ElementsAre("b")); // over the first
    EXPECT_EQ(instance(0).getInitialAngle(), 2.0);
}

TEST_F(ImportInstances, AnInstanceOnALayerThatWasMissingHasNoPartner)
{
    const CZelUUID here = layer(from(), "Trees", 2);
    addInstance(to(), "old", idOfNumber(10), here); // names a layer that is not there yet
    addInstance(from(), "new", idOfNumber(10), here);
    import(kInstances);
    EXPECT_THAT(namesOf(to().getObjectInstances()), ElementsAre("old", "new"));
}

TEST_F(ImportInstances, IdentifierAndLayerPairAndTheLastOneWins)
{
    const CZelUUID trees = layer(to(), "Trees", 1);
    const CZelUUID cars = layer(to(), "Cars", 2);
    const CZelUUID here = layer(from(), "Trees", 3);
    addInstance(to(), "0", idOfNumber(10), trees);
    addInstance(to(), "1", idOfNumber(10), trees);
    addInstance(to(), "2", idOfNumber(10), cars);
    addInstance(to(), "3", idOfNumber(11), trees);
    addInstance(from(), "new", idOfNumber(10), here);
    import(kInstances);
    EXPECT_THAT(namesOf(to().getObjectInstances()), ElementsAre("0", "new", "2", "3"));
}

TEST_F(ImportInstances, WithoutALayerASecondImportAppendsAgain)
{
    addInstance(from(), "a", idOfNumber(10), CZelUUID());
    addInstance(from(), "b", idOfNumber(11), idOfNumber(99)); // a layer that the source lacks
    import(kInstances);
    import(kInstances);
    EXPECT_THAT(namesOf(to().getObjectInstances()), ElementsAre("a", "b", "a", "b"));
    EXPECT_EQ(instance(0).getBasicData()->getId()->compare(idOfNumber(10)), 0);
    EXPECT_EQ(idOf(instance(3)), idOfNumber(11));
    EXPECT_EQ(to().getLayers()->getNbObjects(), 0);
}

TEST_F(ImportInstances, WithoutALayerItGoesToTheDefaultOrTheActiveOne)
{
    to().getLayerInfo()->setActiveLayer(idOfNumber(1));
    to().getLayerInfo()->setDefaultLayer("Billboard", idOfNumber(2));
    addInstance(from(), "a", idOfNumber(10), idOfNumber(99), "Billboard");
    addInstance(from(), "b", idOfNumber(11), idOfNumber(99), "ZelObject");
    import(kInstances);
    EXPECT_EQ(instance(0).getLayerId(), idOfNumber(2));
    EXPECT_EQ(instance(1).getLayerId(), idOfNumber(1));
}

TEST_F(ImportInstances, ALayerThatKeptItsIdentifierBecomesActiveAndDefault)
{
    const char* classes[] = {"ModelObject",    "Billboard", "ZelObject",
                             "AnimatedObject", "3DPlant",   "LightObject"};
    for (const int number : {1, 2, 3}) { // kept, renewed, made by the import
        CImportPair pair;
        if (number < 3)
            add(pair.destination->getLayers(), "Trees", idOfNumber(1));
        const CZelUUID here = idOf(add(pair.source->getLayers(), "Trees", idOfNumber(number)));
        pair.source->getLayerInfo()->setActiveLayer(here);
        for (const char* each : classes)
            pair.source->getLayerInfo()->setDefaultLayer(each, here);
        addInstance(*pair.source.get(), "a", idOfNumber(10), here);
        pair.import(kInstances);
        IZelLayerInfo& info = *pair.destination->getLayerInfo();
        const CZelUUID expected = number != 2 ? here : CZelUUID();
        EXPECT_EQ(info.getActiveLayer(), expected);
        for (const char* each : classes)
            EXPECT_EQ(info.getDefaultLayer(each), expected) << each;
    }
}

TEST_F(ImportInstances, ALayerWithoutAnIdentifierIsNoDefaultLayer)
{
    add(to().getLayers(), "Trees", CZelUUID());
    to().getLayerInfo()->setDefaultLayer("Billboard", idOfNumber(1));
    const CZelUUID here = idOf(add(from().getLayers(), "Trees", CZelUUID()));
    addInstance(from(), "a", idOfNumber(10), here);
    import(kInstances);
    EXPECT_EQ(nbInstances(), 1);
    EXPECT_EQ(to().getLayerInfo()->getDefaultLayer("Billboard"), idOfNumber(1));
}

TEST_F(ImportInstances, OnlySomeClassesComeButEveryLayerDoes)
{
    struct {
        const char* text;
        std::vector<std::int32_t> levels;
        bool comes;
    } cases[] = {
        {"ZelObject", {0}, true},      {"Billboard", {0}, true},
        {"3DPlant", {}, true},         {"LightObject", {}, true},
        {"AnimatedObject", {}, true},  {"ModelObject", {}, true},
        {"ModelObject", {2}, true},    {"ModelObject", {1}, true},
        {"ModelObject", {0}, false},   {"ModelObject", {1, 0}, false},
        {"ModelObject", {0, 1}, true}, {"ModelObject", {0, 2}, false},
        {"GroupInstances", {}, false}, {"Other", {}, false},
    };
    for (const auto& each : cases) {
        CImportPair pair;
        const CZelUUID here = idOf(add(pair.source->getLayers(), "L"));
        for (const std::int32_t level : each.levels)
            addComponent(*pair.source.get(), "C", level);
        pair.source->getLayerInfo()->setActiveLayer(here);
        addInstance(*pair.source.get(), "a", idOfNumber(10), here, each.text);
        pair.import(kInstances);
        EXPECT_EQ(pair.destination->getObjectInstances()->getNbObjects(), each.comes ? 1 : 0)
            << each.text << " " << testing::PrintToString(each.levels);
        EXPECT_EQ(pair.destination->getLayers()->getNbObjects(), 1);
        EXPECT_EQ(pair.destination->getLayerInfo()->getActiveLayer() == here, each.comes);
    }
}

TEST_F(ImportInstances, WhatStoodOnTheTopLevelStandsOnNothing)
{
    struct {
        std::int32_t level;
        std::vector<const char*> bases; // the classes of the instances with that identifier
        bool isDetached;
    } cases[] = {
        {0, {"ModelObject"}, true},
        {1, {"ModelObject"}, false},
        {0, {"ZelObject"}, false},
        {0, {"ZelObject", "ModelObject"}, true},
        {0, {"ModelObject", "ZelObject"}, false}, // the last one counts
        {0, {}, false},
    };
    for (const auto& each : cases) {
        CImportPair pair;
        addComponent(*pair.source.get(), "C", each.level);
        IZelObjectInstance& standing =
            addInstance(*pair.source.get(), "a", idOfNumber(10), CZelUUID());
        standing.setAttachId(idOfNumber(20));
        standing.setTriangleId(3);
        for (const char* base : each.bases)
            addInstance(*pair.source.get(), "base", idOfNumber(20), CZelUUID(), base);
        pair.import(kInstances);
        IZelObjectInstance& copy = *pair.destination->getObjectInstances()->getZelObject(0);
        EXPECT_EQ(copy.getAttachId().isNull(), each.isDetached);
        EXPECT_EQ(copy.getTriangleId(), each.isDetached ? -1 : 3);
    }
}

TEST_F(ImportInstances, APartnerOfAnotherClassBecomesOneOfThatClass)
{
    const CZelUUID there = layer(to(), "Trees", 1);
    const CZelUUID here = layer(from(), "Trees", 2);
    addInstance(to(), "old", idOfNumber(10), there, "Billboard");
    addInstance(from(), "new", idOfNumber(10), here, "ModelObject");
    import(kInstances);
    ASSERT_EQ(nbInstances(), 1);
    EXPECT_STREQ(instance(0).getClass(), "ModelObject");
    EXPECT_NE(instance(0).asInternalComponentInstance(), nullptr);
    EXPECT_EQ(instance(0).asBBObjectInstance(), nullptr);
    EXPECT_TRUE(destination.write());
    EXPECT_THAT(takeMessages(), IsEmpty());
}

TEST_F(ImportInstances, ALayerWithoutInstancesStaysBehind)
{
    layer(from(), "Unused", 1);
    import(kInstances);
    EXPECT_THAT(namesOf(to().getLayers()), IsEmpty());
}

TEST_F(ImportInstances, OverridesOfTheInstanceGetIdentifiersOfTheirOwn)
{
    IZelObjectInstance& exported = addInstance(from(), "a", idOfNumber(10), CZelUUID());
    add(exported.getProperties(), "Oak", idOfNumber(30)).setOverloadId(idOfNumber(31));
    import(kInstances);
    IZelProperty& copy = *instance(0).getProperties()->getZelObject(0);
    EXPECT_EQ(nameOf(copy), "Oak");
    EXPECT_NE(idOf(copy), idOfNumber(30));
    EXPECT_TRUE(copy.getOverloadId().isNull());
}

TEST_F(ImportInstances, AnActiveGroundComesAsAWhole)
{
    struct {
        bool isActive, isThere;
    } cases[] = {{false, false}, {false, true}, {true, false}, {true, true}};
    for (const auto [isActive, isThere] : cases) {
        CImportPair pair;
        if (isThere)
            add(pair.destination->getGrounds(), "old", idOfNumber(1)).setHeight(1.0);
        IZelGround& ground = add(pair.source->getGrounds(), "new", idOfNumber(2));
        ground.setActive(isActive);
        ground.setHeight(2.0);
        ground.getProperty()->getBasicData()->setName("Grass");
        add(pair.source->getGrounds(), "second").setActive(true);
        pair.import(kInstances);
        TZelObjectMgr<IZelGround>* grounds = pair.destination->getGrounds();
        ASSERT_EQ(grounds->getNbObjects(), isActive || isThere ? 1 : 0);
        if (grounds->getNbObjects() == 0)
            continue;
        EXPECT_EQ(grounds->getZelObject(0)->getHeight(), isActive ? 2.0 : 1.0);
        EXPECT_EQ(idOf(*grounds->getZelObject(0)) == idOfNumber(1), isThere);
        EXPECT_NE(idOf(*grounds->getZelObject(0)), idOfNumber(2));
        EXPECT_EQ(nameOf(*grounds->getZelObject(0)), isActive ? "new" : "old");
    }
}

} // namespace
