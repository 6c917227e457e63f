#include "animation/CZelScenario.h"

#include "tests/support/accessors.h"
#include "tests/support/checkElement.h"
#include "tests/support/messageOf.h"
#include "tests/support/viewParts.h"

using namespace OvZel;
using namespace ZelTest;

namespace {

const std::string kNullId(32, '0');
const std::string kId = "000102030405060708090A0B0C0D0E0F";

/// Two sequences as they stand in a scenario; their file form has a table of its own.
std::string sequences()
{
    CTestDocument document;
    const TZelComPtr sequence = newView<CZelSequence>()(document);
    const CZelUUID id(kId.c_str());
    sequence->setId(&id);
    const std::string first = partText(document, "Sequence", *sequence);
    sequence->setName("Other");
    return first + partText(document, "Sequence", *sequence);
}

CRow listRow(const std::string& name, const std::string& content)
{
    return optional(raw(name, elementText(name, content), elementText(name, "")));
}

std::string read(CTestDocument& document, CZelScenario& scenario, const std::string& content)
{
    const CTestElement file("<E><Scenario>" + content + "</Scenario></E>");
    CZelXMLIO io(document.ref(), true);
    return messageOf([&] { scenario.getXML(io, file.element()); });
}

const char* const kLeast = "<Name en=\"N\"/><Current.Frame>1</Current.Frame>"
                           "<Current.Sequence>2</Current.Sequence>";

} // namespace

TEST(Scenario, ANewOne)
{
    CZelScenario scenario(nullptr);
    EXPECT_STREQ(scenario.getName(), "");
    EXPECT_EQ(scenario.getCurrentFrame(), 0);
    EXPECT_EQ(scenario.getCurrentSequence(), 0);
    EXPECT_EQ(scenario.getMaxTime(), 500);
    EXPECT_EQ(scenario.getFPS(), 25);
    EXPECT_EQ(scenario.getStartVisibleTime(), 0);
    EXPECT_EQ(scenario.getEndVisibleTime(), 500);
    const IZelScenario& constant = scenario;
    EXPECT_EQ(constant.getSequences(), scenario.getSequences());
    EXPECT_EQ(constant.getAnimatedElements(), scenario.getAnimatedElements());
    EXPECT_EQ(constant.getSnds(), scenario.getSnds());
    EXPECT_EQ(constant.getTimeGuides(), scenario.getTimeGuides());
    EXPECT_EQ(scenario.getSequences()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getAnimatedElements()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getSnds()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getTimeGuides()->getNbObjects(), 0);
}

TEST(Scenario, StoresWhatComes)
{
    using I = IZelScenario;
    CZelScenario scenario(nullptr);
    expectAccessors<I>(scenario,
                       {ACCESS(I, Name, "Tour"), ACCESS(I, CurrentFrame, -1),
                        ACCESS(I, CurrentSequence, -2), ACCESS(I, MaxTime, -3), ACCESS(I, FPS, -4),
                        ACCESS(I, StartVisibleTime, -5), ACCESS(I, EndVisibleTime, -6)});
    scenario.setName(nullptr);
    EXPECT_STREQ(scenario.getName(), "");
}

TEST(Scenario, TheVisibleRangeDoesNotFollowTheMaximumTime)
{
    CZelScenario scenario(nullptr);
    scenario.setMaxTime(900);
    EXPECT_EQ(scenario.getEndVisibleTime(), 500);
}

TEST(ScenarioXml, FileForm)
{
    const std::string element = "<Animated.Element Type=\"Light\" UUID=\"" + kId +
                                "\"><Interpolated.Values/></Animated.Element>";
    const std::string sound =
        "<Snd UUID=\"" + kId + "\"><Start.Frame>3</Start.Frame><URL>a.wav</URL></Snd>";
    const std::vector<CRow> rows = {
        required(raw("Name", "<Name en=\"Tour\"/>", "<Name en=\"\"/>"),
                 "CZelXMLGet::CZelXMLGet - NULL ptr"),
        integer("Current.Frame", 1, 0),
        integer("Current.Sequence", 2, 0),
        optional(integer("Max.Time", 300, 500)),
        optional(integer("FPS", 30, 25)),
        optional(integer("Start.Visible.Time", 10, 0)),
        optional(integer("End.Visible.Time", 200, 500)),
        listRow("Sequences", sequences()),
        listRow("Animated.Elements", element + element),
        listRow("Time.Guides", "<Time.Guide><Time>4</Time></Time.Guide>"),
        listRow("Snds", sound + sound),
    };
    checkElement<CZelScenario>("Scenario", rows);
}

TEST(ScenarioXml, MissingTimesKeepWhatTheObjectHas)
{
    CTestDocument document;
    CZelScenario scenario(document.ref());
    ASSERT_EQ(read(document, scenario, std::string(kLeast) + "<Max.Time>80</Max.Time>"),
              "no exception");
    EXPECT_EQ(scenario.getMaxTime(), 80);
    EXPECT_EQ(scenario.getEndVisibleTime(), 500);
    scenario.setEndVisibleTime(70);
    ASSERT_EQ(read(document, scenario, kLeast), "no exception");
    EXPECT_EQ(scenario.getMaxTime(), 80);
    EXPECT_EQ(scenario.getEndVisibleTime(), 70);
}

TEST(ScenarioXml, MissingListsEmptyTheOldOnes)
{
    CTestDocument document;
    CZelScenario scenario(document.ref());
    scenario.getSequences()->newZelObject(-1);
    scenario.getAnimatedElements()->newZelObject(-1);
    scenario.getSnds()->newZelObject(-1);
    scenario.getTimeGuides()->newZelObject(-1);
    ASSERT_EQ(read(document, scenario, kLeast), "no exception");
    EXPECT_EQ(scenario.getSequences()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getAnimatedElements()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getSnds()->getNbObjects(), 0);
    EXPECT_EQ(scenario.getTimeGuides()->getNbObjects(), 0);
}

TEST(ScenarioXml, AnAnimatedElementOfAnUnknownKindFailsTheScenario)
{
    CTestDocument document;
    CZelScenario scenario(document.ref());
    EXPECT_EQ(read(document, scenario,
                   std::string(kLeast) + "<Animated.Elements><Animated.Element Type=\"Cloud\"/>"
                                         "</Animated.Elements>"),
              "Invalid label (Cloud) [Sequence..Mapping.Node]");
}

TEST(ScenarioXml, AnElementThatCannotBeWrittenFailsTheScenario)
{
    CTestDocument document;
    CZelScenario scenario(document.ref());
    scenario.getAnimatedElements()->newZelObject(-1);
    const CTestElement target;
    EXPECT_EQ(scenario.putInXML(target.element()), nullptr);
    EXPECT_EQ(document.takeMessages(),
              std::vector<std::string>{"Exception in CZelXMLRef::putInXML : No label for the value "
                                       "(0) [Sequence..Mapping.Node]"});
}

TEST(Snd, ANewOne)
{
    using I = IZelSnd;
    CZelSnd sound(nullptr);
    EXPECT_EQ(sound.getStartFrame(), 0);
    EXPECT_TRUE(sound.getId().isNull());
    EXPECT_STREQ(sound.getURL(), "");
    expectAccessors<I>(sound, {ACCESS(I, Id, CZelUUID(kId.c_str())), ACCESS(I, URL, "a.wav"),
                               ACCESS(I, StartFrame, -1)});
    sound.setURL(nullptr);
    EXPECT_STREQ(sound.getURL(), "");
}

TEST(SndXml, FileForm)
{
    const std::vector<CRow> rows = {
        integer("Start.Frame", -3, 0),
        required(attribute("UUID", kId, kNullId), "CZelXMLGet::GetUUID - NULL ptr for tag UUID"),
        optional(text("URL", "a &amp; b.wav", "")),
    };
    for (const bool getUUID : {true, false}) { // the identifier is that of the file in any case
        CForm form;
        form.getUUID = getUUID;
        checkElement<CZelSnd>("Snd", rows, form);
    }
}

TEST(TimeGuideXml, FileForm)
{
    CZelScenarioTimeGuide guide(nullptr);
    EXPECT_EQ(guide.getTime(), 0);
    checkElement<CZelScenarioTimeGuide>("Time.Guide", {integer("Time", -5, 0)});
}
