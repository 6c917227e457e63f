#include "tests/support/CImportPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <functional>

// The reference import as a whole: flags, pairing by name, failures, size.

namespace {

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kEverything = 0xFFF;

/// One value of each category, 1 in the destination and 2 in the source.
struct CCategory {
    std::int32_t flag;
    const char* name;
    std::function<void(IZelMgr&, double)> make;
    std::function<double(IZelMgr&)> get;
};

void makePanorama(IZelMgr& document, double value)
{
    IZelPanoramaV2& panorama = addView(document.getPanoramas(), "A");
    panorama.setFocal(value);
    panorama.getNodes()->newZelObject(-1);
}

std::vector<CCategory> categories()
{
    return {
        {0x001, "materials",
         [](IZelMgr& d, double v) {
             add(addComponent(d, "A", 1).getProperties(), "A").setScale(v);
         },
         [](IZelMgr& d) {
             return d.getDefinitions()
                 ->getZelObject(0)
                 ->getProperties()
                 ->getZelObject(0)
                 ->getScale();
         }},
        {0x010, "lights", [](IZelMgr& d, double v) { add(d.getLights(), "A").setPower(v); },
         [](IZelMgr& d) { return d.getLights()->getZelObject(0)->getPower(); }},
        {0x020, "heliodons",
         [](IZelMgr& d, double v) { add(d.getHeliodons(), "A").setNorthAngle(v); },
         [](IZelMgr& d) { return d.getHeliodons()->getZelObject(0)->getNorthAngle(); }},
        {0x040, "instances",
         [](IZelMgr& d, double v) {
             const CZelUUID layer = idOf(add(d.getLayers(), "A"));
             addInstance(d, "A", idOfNumber(1), layer).setInitialAngle(v);
         },
         [](IZelMgr& d) { return d.getObjectInstances()->getZelObject(0)->getInitialAngle(); }},
        {0x080, "cameras", [](IZelMgr& d, double v) { addView(d.getCameras(), "A").setFocal(v); },
         [](IZelMgr& d) { return d.getCameras()->getZelObject(0)->getFocal(); }},
        {0x100, "parallel views",
         [](IZelMgr& d, double v) { addView(d.getParallelViews(), "A").setSize(v); },
         [](IZelMgr& d) { return d.getParallelViews()->getZelObject(0)->getSize(); }},
        {0x200, "view objects",
         [](IZelMgr& d, double v) { addView(d.getViewObjects(), "A").setRadius(v); },
         [](IZelMgr& d) { return d.getViewObjects()->getZelObject(0)->getRadius(); }},
        {0x400, "panoramas", makePanorama,
         [](IZelMgr& d) { return d.getPanoramas()->getZelObject(0)->getFocal(); }},
        {0x800, "sequences",
         [](IZelMgr& d, double v) {
             addView(firstScenario(d).getSequences(), "A").setTargetDistance(v);
         },
         [](IZelMgr& d) {
             return firstScenario(d).getSequences()->getZelObject(0)->getTargetDistance();
         }},
    };
}

/// Two documents with an object of every category, which differ in every one.
struct CFullPair : CImportPair {
    CFullPair()
    {
        for (const CCategory& category : categories()) {
            category.make(*destination.get(), 1.0);
            category.make(*source.get(), 2.0);
        }
    }
};

TEST(Import, EachFlagChangesItsCategoryAlone)
{
    for (int bit = 0; bit < 12; ++bit) {
        CFullPair pair;
        pair.import(1 << bit);
        for (const CCategory& category : categories())
            EXPECT_EQ(category.get(*pair.destination.get()), category.flag == 1 << bit ? 2.0 : 1.0)
                << category.name << " under bit " << bit;
        EXPECT_THAT(pair.takeMessages(), IsEmpty()) << "bit " << bit;
    }
}

TEST(Import, FlagsWithoutACategoryChangeNothing)
{
    for (const std::int32_t flags : {0, 0x002, 0x004, 0x008, 0x00E, 0x7FFFF000}) {
        CFullPair pair;
        const std::string before = pair.destination.save();
        pair.import(flags);
        EXPECT_EQ(pair.destination.save(), before) << "flags " << flags;
    }
}

TEST(Import, EveryFlagAtOnceChangesEverything)
{
    CFullPair pair;
    pair.import(kEverything);
    for (const CCategory& category : categories())
        EXPECT_EQ(category.get(*pair.destination.get()), 2.0) << category.name;
}

TEST(Import, NothingIsRemovedFromTheDestination)
{
    CFullPair pair;
    CSunlessDocument empty;
    const std::string before = pair.destination.save();
    IZelMgr::doImportReference(pair.destination.get(), empty.get(), kEverything);
    EXPECT_EQ(pair.destination.save(), before);
}

TEST(Import, WithoutACategoryNoViewShowsMoreLayers)
{
    CFullPair pair;
    pair.source->getLayers()->removeAllObjects();
    const std::string before = pair.destination.save();
    pair.import(0);
    EXPECT_EQ(pair.destination.save(), before);
}

TEST(Import, AnEmptyDestinationTakesAllButMaterials)
{
    CFullPair pair;
    CSunlessDocument empty;
    IZelMgr::doImportReference(empty.get(), pair.source.get(), kEverything);
    for (const CCategory& category : categories()) {
        if (category.flag != 0x001) {
            EXPECT_EQ(category.get(*empty.get()), 2.0) << category.name;
        }
    }
    EXPECT_EQ(empty->getDefinitions()->getNbObjects(), 0);
    EXPECT_EQ(empty->getScenarios()->getNbObjects(), 1);
    EXPECT_THAT(empty.takeMessages(), IsEmpty());
}

TEST(Import, EmptyDocumentsStayEmpty)
{
    CImportPair pair;
    const std::string before = pair.destination.save();
    pair.import(kEverything);
    EXPECT_EQ(pair.destination.save(), before);
    EXPECT_EQ(pair.destination->getScenarios()->getNbObjects(), 0);
}

TEST(Import, TheSameDocumentTwiceDoesNothing)
{
    CFullPair pair;
    const CZelUUID layer = idOf(*pair.destination->getLayers()->getZelObject(0));
    addInstance(*pair.destination.get(), "free", idOfNumber(7), CZelUUID());
    const std::string before = pair.destination.save();
    IZelMgr::doImportReference(pair.destination.get(), pair.destination.get(), kEverything);
    EXPECT_EQ(pair.destination.save(), before);
    EXPECT_EQ(idOf(*pair.destination->getLayers()->getZelObject(0)), layer);
}

TEST(Import, ANullDocumentRaises)
{
    CImportPair pair;
    IZelMgr* document = pair.source.get();
    EXPECT_THROW(IZelMgr::doImportReference(nullptr, document, 0), std::exception);
    EXPECT_THROW(IZelMgr::doImportReference(document, nullptr, 0), std::exception);
    EXPECT_THROW(IZelMgr::doImportReference(nullptr, nullptr, 0), std::exception);
}

TEST(Import, NamesPairExactlyAndTheFirstOfANameCounts)
{
    CImportPair pair;
    for (const char* name : {"lamp", "Lamp", "Lamp", ""})
        add(pair.destination->getLights(), name).setPower(1.0);
    add(pair.source->getLights(), "Lamp").setPower(2.0);
    add(pair.source->getLights(), "Lamp ").setPower(3.0);
    add(pair.source->getLights(), "").setPower(4.0);
    pair.import(0x010);
    TZelObjectMgr<IZelLight>* lights = pair.destination->getLights();
    EXPECT_THAT(namesOf(lights), ElementsAre("lamp", "Lamp", "Lamp", "", "Lamp "));
    std::vector<double> powers;
    for (std::int32_t i = 0; i < lights->getNbObjects(); ++i)
        powers.push_back(lights->getZelObject(i)->getPower());
    EXPECT_THAT(powers, ElementsAre(1.0, 2.0, 1.0, 4.0, 3.0));
}

TEST(Import, EveryNameFindsItselfAgain)
{
    CImportPair pair;
    const char* names[] = {"",         " ",        "a\r\n\tb", "<&\"'>",
                           "\x01\x7F", "\xFF\xC3", "\xC3\xA9", "%s%n"};
    for (const char* name : names) {
        add(pair.source->getLights(), name);
        addView(pair.source->getCameras(), name);
    }
    for (int i = 0; i < 2; ++i) {
        pair.import(0x090);
        EXPECT_THAT(namesOf(pair.destination->getLights()), testing::ElementsAreArray(names));
        EXPECT_THAT(namesOf(pair.destination->getCameras()), testing::ElementsAreArray(names));
    }
    EXPECT_THAT(pair.takeMessages(), IsEmpty());
}

TEST(Import, OfTwoSourceObjectsWithOneNameTheSecondWins)
{
    for (const bool isThere : {false, true}) {
        CImportPair pair;
        if (isThere)
            add(pair.destination->getLights(), "Lamp");
        add(pair.source->getLights(), "Lamp").setPower(2.0);
        add(pair.source->getLights(), "Lamp").setPower(3.0);
        pair.import(0x010);
        ASSERT_EQ(pair.destination->getLights()->getNbObjects(), 1);
        EXPECT_EQ(pair.destination->getLights()->getZelObject(0)->getPower(), 3.0);
    }
}

TEST(Import, IdentifiersOfLightsAndHeliodonsStayTheirOwn)
{
    CImportPair pair;
    add(pair.destination->getLights(), "A", idOfNumber(1));
    add(pair.source->getLights(), "A", idOfNumber(2));
    add(pair.source->getLights(), "B", idOfNumber(3));
    add(pair.destination->getHeliodons(), "A", idOfNumber(4));
    add(pair.source->getHeliodons(), "A", idOfNumber(5));
    pair.import(0x030);
    EXPECT_EQ(idOf(*pair.destination->getLights()->getZelObject(0)), idOfNumber(1));
    EXPECT_NE(idOf(*pair.destination->getLights()->getZelObject(1)), idOfNumber(3));
    EXPECT_EQ(idOf(*pair.destination->getHeliodons()->getZelObject(0)), idOfNumber(4));
}

TEST(Import, ALightBringsItsGroups)
{
    CImportPair pair;
    add(pair.destination->getLightsGroups(), "old name", idOfNumber(1))
        .getBasicData()
        ->setUIValue(5);
    add(pair.source->getLightsGroups(), "new name", idOfNumber(1)).getBasicData()->setUIValue(6);
    add(pair.source->getLightsGroups(), "second", idOfNumber(2));
    add(pair.source->getLightsGroups(), "unused", idOfNumber(3));
    IZelLight& light = add(pair.source->getLights(), "A");
    for (const int number : {1, 2, 2, 99})
        addId(light.getLightsGroups(), idOfNumber(number));
    pair.import(0x010);
    TZelObjectMgr<IZelLightsGroup>* groups = pair.destination->getLightsGroups();
    ASSERT_THAT(namesOf(groups), ElementsAre("new name", "second"));
    EXPECT_EQ(groups->getZelObject(0)->getBasicData()->getUIValue(), 5u); // the name alone
    EXPECT_EQ(idOf(*groups->getZelObject(1)), idOfNumber(2));
}

TEST(Import, ThereIsNoTransformUnlessTheDestinationHasOne)
{
    const double doubled[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1};
    for (const bool hasOne : {false, true}) {
        CImportPair pair;
        if (hasOne)
            pair.destination->setMatrix(doubled);
        pair.source->setMatrix(hasOne ? nullptr : doubled);
        add(pair.source->getLights(), "A").setPosition({1.0, 2.0, 3.0});
        pair.import(0x010);
        EXPECT_EQ(pair.destination->getLights()->getZelObject(0)->getPosition().y,
                  hasOne ? 4.0 : 2.0);
    }
}

TEST(Import, WhatCannotBeWrittenIsPassedOverWithAWarning)
{
    CImportPair pair;
    IZelObjectInstance& bad = addInstance(*pair.source.get(), "bad", idOfNumber(1), CZelUUID());
    bad.setPlacementProperty(17); // has no label
    addInstance(*pair.source.get(), "good", idOfNumber(2), CZelUUID());
    pair.import(0x040);
    EXPECT_THAT(namesOf(pair.destination->getObjectInstances()), ElementsAre("good"));
    EXPECT_THAT(pair.destination.takeMessages(), IsEmpty());
    EXPECT_EQ(pair.source.takeMessages().size(), 1u);
}

/// Throws what isn't even an exception.
class CThrowingFeedback : public IZelFeedback {
public:
    void message(IZelMgr*, const char*) override
    {
        ++nbMessages;
        throw 1;
    }
    bool progress(IZelMgr*, std::int32_t, std::int32_t) override { throw 1; }

    int nbMessages = 0;
};

TEST(Import, AFeedbackThatThrowsStopsNothing)
{
    CThrowingFeedback feedback;
    IZelMgr* source = nullptr;
    IZelMgr::newZelMgr(&source, eVersionZel, &feedback);
    CClientDocument destination;
    addInstance(*source, "bad", idOfNumber(1), CZelUUID()).setPlacementProperty(17);
    addInstance(*source, "good", idOfNumber(2), CZelUUID());
    IZelMgr::doImportReference(destination.get(), source, kEverything);
    EXPECT_THAT(namesOf(destination->getObjectInstances()), ElementsAre("good"));
    EXPECT_EQ(feedback.nbMessages, 1);
    source->Release();
    EXPECT_TRUE(destination.write());
}

/// Processor time, so that a busy machine doesn't count.
double secondsToImport(CImportPair& pair, std::int32_t flags)
{
    const std::clock_t start = std::clock();
    pair.import(flags);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double secondsToImportLights(int count)
{
    CImportPair pair;
    for (int i = 0; i < count; ++i) {
        add(pair.destination->getLights(), std::to_string(i).c_str());
        add(pair.source->getLights(), std::to_string(count - 1 - i).c_str()).setPower(i + 1.0);
    }
    const double seconds = secondsToImport(pair, 0x010);
    EXPECT_EQ(pair.destination->getLights()->getNbObjects(), count);
    EXPECT_EQ(pair.destination->getLights()->getZelObject(0)->getPower(), count);
    return seconds;
}

/// So many lights move on one path with as many points.
double secondsToImportOnePath(int count)
{
    CImportPair pair;
    IZelScenario& scenario = firstScenario(*pair.source.get());
    IZel3DPath& path = add(pair.source->get3DPaths(), "", idOfNumber(1));
    for (int i = 0; i < count; ++i) {
        const std::string name = std::to_string(i);
        const CZelUUID id = idOf(add(pair.destination->getLights(), name.c_str()));
        add(pair.source->getLights(), name.c_str());
        IZelAnimatedElement& element = add(scenario.getAnimatedElements());
        element.setId(id);
        IZelInterpolatedValue& value = add(element.getInterpolatedValues());
        value.setChannel(1);
        value.setPathId(idOfNumber(1));
        add(path.getBezierPoints());
    }
    const double seconds = secondsToImport(pair, 0x010);
    TZelObjectMgr<IZel3DPath>& paths = *pair.destination->get3DPaths();
    EXPECT_EQ(paths.getNbObjects(), 1);
    EXPECT_EQ(paths.getZelObject(0)->getBezierPoints()->getNbObjects(), count);
    EXPECT_EQ(firstScenario(*pair.destination.get()).getAnimatedElements()->getNbObjects(), count);
    return seconds;
}

TEST(Import, TimeGrowsWithTheLengthOfTheListsNotWithItsSquare)
{
    const double few = secondsToImportLights(2000);
    const double many = secondsToImportLights(20'000);
    EXPECT_LT(many, 45.0 * few); // in proportion about 10; a walk for each light makes it above 100
}

TEST(Import, APathThatManyShareIsCopiedOnce)
{
    const double few = secondsToImportOnePath(400);
    const double many = secondsToImportOnePath(4000);
    EXPECT_LT(many, 45.0 * few);
}

} // namespace
