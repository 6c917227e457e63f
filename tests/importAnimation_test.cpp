#include "tests/support/CImportPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Scenarios, animated elements and their paths in the reference import.

namespace {

using namespace OvZel;
using namespace ZelTest;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kLights = 0x010;
constexpr std::int32_t kHeliodons = 0x020;
constexpr std::int32_t kInstances = 0x040;
constexpr std::int32_t kCameras = 0x080;
constexpr std::int32_t kSequences = 0x800;
constexpr std::int32_t kLightElement = 2;

IZelAnimatedElement& addElement(IZelScenario& scenario, const CZelUUID& id)
{
    IZelAnimatedElement& element = add(scenario.getAnimatedElements());
    element.setId(id);
    element.setElementType(kLightElement);
    return element;
}

IZelInterpolatedValue& addValue(IZelAnimatedElement& element, std::int32_t channel,
                                std::int32_t loops, const CZelUUID& path = CZelUUID())
{
    IZelInterpolatedValue& value = add(element.getInterpolatedValues());
    value.setChannel(channel);
    value.setNbLoops(loops);
    value.setPathId(path);
    return value;
}

/// Channel and number of loops of every value.
std::vector<std::pair<int, int>> valuesOf(IZelAnimatedElement& element)
{
    std::vector<std::pair<int, int>> values;
    for (std::int32_t i = 0; i < element.getInterpolatedValues()->getNbObjects(); ++i) {
        IZelInterpolatedValue& value = *element.getInterpolatedValues()->getZelObject(i);
        values.emplace_back(value.getChannel(), value.getNbLoops());
    }
    return values;
}

struct ImportAnimation : testing::Test, CImportPair {
    IZelMgr& to() { return *destination.get(); }
    IZelMgr& from() { return *source.get(); }
    /// A source with a scenario and both documents with a light of one identifier.
    IZelScenario& animatedLight()
    {
        add(to().getLights(), "A", idOfNumber(1));
        add(from().getLights(), "A", idOfNumber(1));
        return add(from().getScenarios());
    }
    IZelAnimatedElement& element(std::int32_t index)
    {
        return *to().getScenarios()->getZelObject(0)->getAnimatedElements()->getZelObject(index);
    }
};

TEST_F(ImportAnimation, WithoutAnElementNoScenarioIsMade)
{
    addElement(animatedLight(), idOfNumber(2));
    import(kLights);
    EXPECT_EQ(to().getScenarios()->getNbObjects(), 0);
}

TEST_F(ImportAnimation, AnElementComesIntoANewScenario)
{
    addValue(addElement(animatedLight(), idOfNumber(1)), 3, 7);
    import(kLights);
    ASSERT_EQ(to().getScenarios()->getNbObjects(), 1);
    EXPECT_EQ(element(0).getId(), idOfNumber(1));
    EXPECT_EQ(element(0).getElementType(), kLightElement);
    EXPECT_THAT(valuesOf(element(0)), ElementsAre(std::pair(3, 7)));
    EXPECT_THAT(takeMessages(), IsEmpty());
}

TEST_F(ImportAnimation, ValuesPairByTheirChannel)
{
    IZelAnimatedElement& there = addElement(add(to().getScenarios()), idOfNumber(1));
    there.setElementType(4);
    addValue(there, 5, 1);
    addValue(there, 3, 1);
    addValue(there, 3, 1);
    IZelAnimatedElement& here = addElement(animatedLight(), idOfNumber(1));
    addValue(here, 3, 2);
    addValue(here, 4, 3);
    addValue(here, 4, 4);
    import(kLights);
    EXPECT_EQ(to().getScenarios()->getZelObject(0)->getAnimatedElements()->getNbObjects(), 1);
    EXPECT_EQ(there.getElementType(), kLightElement);
    EXPECT_THAT(valuesOf(there),
                ElementsAre(std::pair(5, 1), std::pair(3, 2), std::pair(3, 1), std::pair(4, 4)));
}

TEST_F(ImportAnimation, AChannelThatComesBackAsAnotherPairsAsThatFromThenOn)
{
    addValue(addElement(add(to().getScenarios()), idOfNumber(1)), 190, 1);
    IZelAnimatedElement& here = addElement(animatedLight(), idOfNumber(1));
    addValue(here, 190, 2); // becomes 189
    addValue(here, 189, 3);
    import(kLights);
    EXPECT_THAT(valuesOf(element(0)), ElementsAre(std::pair(189, 3)));
}

TEST_F(ImportAnimation, AValueBringsItsPath)
{
    add(to().get3DPaths(), "", idOfNumber(10));
    add(from().get3DPaths(), "", idOfNumber(10)).setClosed(true);
    add(add(from().get3DPaths(), "", idOfNumber(11)).getBezierPoints());
    add(from().get3DPaths(), "", idOfNumber(12));
    IZelAnimatedElement& here = addElement(animatedLight(), idOfNumber(1));
    for (const int number : {10, 11, 99})
        addValue(here, number, number, idOfNumber(number));
    import(kLights);
    TZelObjectMgr<IZel3DPath>& paths = *to().get3DPaths();
    ASSERT_EQ(paths.getNbObjects(), 2);
    EXPECT_TRUE(paths.getZelObject(0)->isClosed());
    EXPECT_EQ(idOf(*paths.getZelObject(1)), idOfNumber(11));
    EXPECT_EQ(paths.getZelObject(1)->getBezierPoints()->getNbObjects(), 1);
    EXPECT_EQ(element(0).getInterpolatedValues()->getNbObjects(), 3); // 99 names nothing, and stays
    EXPECT_EQ(element(0).getInterpolatedValues()->getZelObject(2)->getPathId(), idOfNumber(99));
}

TEST_F(ImportAnimation, AValueThatCannotBeWrittenIsPassedOver)
{
    IZelAnimatedElement& here = addElement(animatedLight(), idOfNumber(1));
    addValue(here, 0, 1); // no channel
    addValue(here, 3, 2);
    import(kLights);
    EXPECT_THAT(valuesOf(element(0)), ElementsAre(std::pair(3, 2)));
    EXPECT_EQ(source.takeMessages().size(), 1u);
    EXPECT_THAT(destination.takeMessages(), IsEmpty());
}

TEST_F(ImportAnimation, HeliodonsInstancesAndSequencesBringTheirsToo)
{
    IZelScenario& scenario = add(from().getScenarios());
    for (const int number : {1, 2, 3})
        addElement(scenario, idOfNumber(number));
    add(to().getHeliodons(), "A", idOfNumber(1));
    add(from().getHeliodons(), "A");
    addInstance(from(), "A", idOfNumber(2), CZelUUID());
    const CZelUUID id = idOfNumber(3);
    addView(scenario.getSequences(), "A").getBasicData()->setId(&id);
    std::int32_t count = 0;
    for (const std::int32_t flag : {kInstances, kHeliodons, kSequences}) {
        import(flag);
        ASSERT_EQ(to().getScenarios()->getNbObjects(), 1);
        EXPECT_EQ(to().getScenarios()->getZelObject(0)->getAnimatedElements()->getNbObjects(),
                  ++count)
            << "flag " << flag;
    }
    EXPECT_EQ(element(0).getId(), idOfNumber(2));
    EXPECT_EQ(element(2).getId(), idOfNumber(3));
}

TEST_F(ImportAnimation, TheCategoriesComeInAFixedOrder)
{
    IZelScenario& scenario = add(from().getScenarios());
    const CZelUUID id = idOfNumber(1);
    addView(scenario.getSequences(), "A").getBasicData()->setId(&id);
    for (IZelMgr* document : {&to(), &from()}) {
        add(document->getHeliodons(), "A", idOfNumber(2));
        add(document->getLights(), "A", idOfNumber(3));
    }
    addInstance(from(), "A", idOfNumber(4), CZelUUID());
    for (const int number : {1, 2, 3, 4})
        addElement(scenario, idOfNumber(number));
    import(kInstances | kLights | kHeliodons | kSequences);
    ASSERT_EQ(to().getScenarios()->getZelObject(0)->getAnimatedElements()->getNbObjects(), 4);
    for (const int number : {4, 3, 2, 1})
        EXPECT_EQ(element(4 - number).getId(), idOfNumber(number));
}

TEST_F(ImportAnimation, ACopyWithAnIdentifierOfItsOwnFindsNone)
{
    IZelScenario& scenario = add(from().getScenarios());
    add(from().getLights(), "A", idOfNumber(1));
    addElement(scenario, idOfNumber(1));
    import(kLights);
    EXPECT_EQ(to().getLights()->getNbObjects(), 1);
    EXPECT_EQ(to().getScenarios()->getNbObjects(), 0);
}

TEST_F(ImportAnimation, OnlyTheFirstScenariosCount)
{
    add(to().getScenarios());
    addView(add(to().getScenarios()).getSequences(), "A").setStartFrame(1);
    addView(add(from().getScenarios()).getSequences(), "A").setStartFrame(2);
    addView(add(from().getScenarios()).getSequences(), "B").setStartFrame(3);
    import(kSequences);
    ASSERT_EQ(to().getScenarios()->getNbObjects(), 2);
    EXPECT_THAT(namesOf(to().getScenarios()->getZelObject(0)->getSequences()), ElementsAre("A"));
    EXPECT_EQ(
        to().getScenarios()->getZelObject(1)->getSequences()->getZelObject(0)->getStartFrame(), 1);
}

TEST_F(ImportAnimation, AnEmptyScenarioIsMadeIfTheSourceHasOne)
{
    add(from().getScenarios());
    add(from().getScenarios());
    import(kCameras);
    EXPECT_EQ(to().getScenarios()->getNbObjects(), 0);
    import(kSequences);
    EXPECT_EQ(to().getScenarios()->getNbObjects(), 1);
}

TEST_F(ImportAnimation, ASequenceTakesTheIdentifierOfTheSource)
{
    const CZelUUID there = idOfNumber(1);
    const CZelUUID here = idOfNumber(2);
    IZelSequence& sequence = addView(add(to().getScenarios()).getSequences(), "A");
    sequence.getBasicData()->setId(&there);
    addView(add(from().getScenarios()).getSequences(), "A").getBasicData()->setId(&here);
    import(kSequences);
    EXPECT_EQ(idOf(sequence), here);
}

TEST_F(ImportAnimation, AHeliodonThatAViewBringsIsNew)
{
    IZelScenario& scenario = add(from().getScenarios());
    addElement(scenario, idOf(add(from().getHeliodons(), "Sun", idOfNumber(1))));
    addView(from().getCameras(), "A").getViewInfo()->setHeliodonName("Sun");
    import(kCameras);
    EXPECT_THAT(namesOf(to().getHeliodons()), ElementsAre("Sun"));
    EXPECT_EQ(to().getScenarios()->getNbObjects(), 0); // its identifier is its own
}

} // namespace
