#include "tests/support/CClientDocument.h"
#include "tests/support/CTimeZone.h"
#include "tests/support/savedText.h"
#include "tests/support/zelFile.h"

#include <zel/IZel3DPath.h>
#include <zel/IZelAnimation.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelMgrEx.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelScenario.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

// Scenarios, paths, panoramas and animations in whole documents.

using namespace OvZel;
using testing::ElementsAre;
using testing::IsEmpty;
using ZelTest::CClientDocument;
using ZelTest::CTimeZone;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kIdC;
using ZelTest::kNoId;
using ZelTest::sectionNames;
using ZelTest::sectionOf;
using ZelTest::zelFile;

namespace {

using uValue = IZelKeyFrame::uValue;

constexpr std::int32_t kNbKinds = 8;

CZelUUID idOf(const std::string& digits)
{
    return CZelUUID(digits.c_str());
}

void identify(IZelBasic& object, const std::string& digits)
{
    const CZelUUID id = idOf(digits);
    object.getBasicData()->setId(&id);
}

/// A value of each kind, another one for each start; reals are those of a float.
uValue valueOf(std::int32_t kind, int start)
{
    uValue value;
    const auto small = static_cast<std::uint8_t>(start);
    switch (kind) {
    case 0:
        value.vector[0] = start + 0.5;
        value.vector[1] = -start;
        value.vector[2] = 2.0 * start;
        break;
    case 1:
        for (std::uint8_t& each : value.color)
            each = static_cast<std::uint8_t>(&each - value.color + 10 * small);
        break;
    case 2:
        value.real = start + 0.25;
        break;
    case 3:
        value.boolean = small % 2;
        break;
    case 5:
        value.date = 5'000'000'000 + start;
        break;
    case 6:
        for (std::uint8_t& each : value.id)
            each = static_cast<std::uint8_t>(&each - value.id + small);
        break;
    default:
        value.integer = -start;
    }
    return value;
}

void expectSame(const uValue& value, const uValue& expected)
{
    EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0);
}

void fillKeyFrame(IZelKeyFrame& frame, std::int32_t kind, int start)
{
    frame.setTime(10 * start);
    frame.setValueType(kind);
    frame.setValue(valueOf(kind, start));
    frame.setCPBefore(valueOf(kind, start + 1));
    frame.setCPAfter(valueOf(kind, start + 2));
    frame.setInterpolationType((kind + start) % 6);
    frame.setVisible(kind % 2 == 0);
    frame.setAreLocked(kind % 3 == 0);
}

void expectKeyFrame(const IZelKeyFrame& frame, std::int32_t kind, int start)
{
    SCOPED_TRACE("kind " + std::to_string(kind));
    EXPECT_EQ(frame.getTime(), 10 * start);
    EXPECT_EQ(frame.getValueType(), kind);
    expectSame(frame.getValue(), valueOf(kind, start));
    expectSame(frame.getCPBefore(), valueOf(kind, start + 1));
    expectSame(frame.getCPAfter(), valueOf(kind, start + 2));
    EXPECT_EQ(frame.getInterpolationType(), (kind + start) % 6);
    EXPECT_EQ(frame.isVisible(), kind % 2 == 0);
    EXPECT_EQ(frame.getAreLocked(), kind % 3 == 0);
}

/// A value whose default and two key frames are of one kind.
void fillValue(IZelInterpolatedValue& value, std::int32_t kind)
{
    value.setChannel(100 + kind);
    value.setLoop(kind % 2 == 1);
    value.setNbLoops(kind);
    value.setPathId(idOf(kIdC));
    fillKeyFrame(*value.getDefaultValue(), kind, 1);
    for (int start = 2; start < 4; ++start)
        fillKeyFrame(*value.getKeyFrames()->newZelObject(-1), kind, start);
}

void expectValue(IZelInterpolatedValue& value, std::int32_t kind)
{
    EXPECT_EQ(value.getChannel(), 100 + kind);
    EXPECT_EQ(value.getLoop(), kind % 2 == 1);
    EXPECT_EQ(value.getNbLoops(), kind);
    EXPECT_EQ(value.getPathId(), idOf(kIdC));
    expectKeyFrame(*value.getDefaultValue(), kind, 1);
    ASSERT_EQ(value.getKeyFrames()->getNbObjects(), 2);
    for (int start = 2; start < 4; ++start)
        expectKeyFrame(*value.getKeyFrames()->getZelObject(start - 2), kind, start);
}

void fillScenario(IZelScenario& scenario)
{
    scenario.setName("Tour");
    scenario.setCurrentFrame(1);
    scenario.setCurrentSequence(2);
    scenario.setMaxTime(300);
    scenario.setFPS(30);
    scenario.setStartVisibleTime(10);
    scenario.setEndVisibleTime(200);
    for (const std::string& id : {kIdA, kIdB}) {
        IZelSequence* sequence = scenario.getSequences()->newZelObject(-1);
        identify(*sequence, id);
        sequence->getBasicData()->setName(id.substr(0, 1).c_str());
        sequence->setObjectId(idOf(kIdC));
        sequence->setTargetType(3);
        sequence->setFlag0();
    }
    IZelAnimatedElement* element = scenario.getAnimatedElements()->newZelObject(-1);
    element->setElementType(6);
    element->setId(idOf(kIdB));
    for (std::int32_t kind = 0; kind < kNbKinds; ++kind)
        fillValue(*element->getInterpolatedValues()->newZelObject(-1), kind);
    IZelSnd* sound = scenario.getSnds()->newZelObject(-1);
    sound->setId(idOf(kIdA));
    sound->setURL("a & b.wav");
    sound->setStartFrame(5);
    scenario.getTimeGuides()->newZelObject(-1)->setTime(7);
}

/// A scenario with one key frame of a date.
std::string dateScenario(const std::string& date)
{
    const std::string frame =
        R"(<KeyFrame Type="Date" Interpolation.Type="Linear"><Time>1</Time><Visible/><Value>)" +
        date + "</Value><CPBefore>" + date + "</CPBefore><CPAfter>" + date +
        "</CPAfter><AreLocked/></KeyFrame>";
    return R"(<Scenarios><Scenario><Name en=""/><Current.Frame>0</Current.Frame>)"
           R"(<Current.Sequence>0</Current.Sequence><Animated.Elements><Animated.Element )"
           R"(Type="Heliodon" UUID=")" +
           kIdA + R"("><Interpolated.Values><Interpolated.Value Type="Heliodon.Date">)" +
           "<Default.Value>" + frame + "</Default.Value><KeyFrames>" + frame +
           "</KeyFrames></Interpolated.Value></Interpolated.Values></Animated.Element>"
           "</Animated.Elements></Scenario></Scenarios>";
}

std::string libraryHead(const std::string& version)
{
    return "<?Zel library=\"" + version +
           "\" file=\"5.0\" min_version=\"5.0.0\" safe_version=\"5.0.0\"?>";
}

/// The dates of the file above; all six are one.
std::int64_t dateOf(CClientDocument& document)
{
    IZelInterpolatedValue* value = document->getScenarios()
                                       ->getZelObject(0)
                                       ->getAnimatedElements()
                                       ->getZelObject(0)
                                       ->getInterpolatedValues()
                                       ->getZelObject(0);
    const std::int64_t date = value->getDefaultValue()->getValue().date;
    for (const IZelKeyFrame* frame :
         {value->getDefaultValue(), value->getKeyFrames()->getZelObject(0)})
        for (const uValue* each : {&frame->getValue(), &frame->getCPBefore(), &frame->getCPAfter()})
            EXPECT_EQ(each->date, date);
    return date;
}

/// A section of paths with one point each.
std::string paths(const std::string& tag, const std::vector<std::string>& ids)
{
    const std::string xyz = R"( X="1.000000" Y="2.000000" Z="3.000000"/>)";
    std::string text = "<" + tag + ">";
    for (const std::string& id : ids)
        text += "<Path.3D UUID=\"" + id + "\"><Closed/><Bezier.points><Bezier.Point><Position" +
                xyz + "<CPBefore" + xyz + "<CPAfter" + xyz +
                "<AreLocked/></Bezier.Point></Bezier.points></Path.3D>";
    return text + "</" + tag + ">";
}

void addNode(IZelPanoramaV2& panorama, const std::string& id)
{
    IZelPanoNodeV2* node = panorama.getNodes()->newZelObject(-1);
    identify(*node, id);
    node->setPosition({1, 2, 3});
}

void addLink(IZelPanoramaV2& panorama, const std::string& start, const std::string& end)
{
    IZelPanoLinkV2* link = panorama.getLinks()->newZelObject(-1);
    link->setStart(idOf(start));
    link->setEnd(idOf(end));
    link->setPathId(idOf(kNoId));
}

/// The first digits of the two ends of each link.
std::vector<std::string> endsOf(IZelPanoramaV2& panorama)
{
    std::vector<std::string> ends;
    for (std::int32_t i = 0; i < panorama.getLinks()->getNbObjects(); ++i) {
        const IZelPanoLinkV2* link = panorama.getLinks()->getZelObject(i);
        const auto letter = [](const CZelUUID& id) {
            return "0ABC"[id.isNull() ? 0 : id.bytes[0] % 16 - 9];
        };
        ends.push_back({letter(link->getStart()), letter(link->getEnd())});
    }
    return ends;
}

} // namespace

TEST(AnimationOfADocument, AScenarioWithKeyFramesOfEveryKindComesBack)
{
    CClientDocument document;
    fillScenario(*document->getScenarios()->newZelObject(-1));
    const std::string saved = document.save();
    CClientDocument other;
    ASSERT_TRUE(other.read(saved));
    EXPECT_THAT(other.takeMessages(), IsEmpty());
    ASSERT_EQ(other->getScenarios()->getNbObjects(), 1);
    IZelScenario& scenario = *other->getScenarios()->getZelObject(0);
    EXPECT_STREQ(scenario.getName(), "Tour");
    EXPECT_EQ(scenario.getCurrentFrame(), 1);
    EXPECT_EQ(scenario.getCurrentSequence(), 2);
    EXPECT_EQ(scenario.getMaxTime(), 300);
    EXPECT_EQ(scenario.getFPS(), 30);
    EXPECT_EQ(scenario.getStartVisibleTime(), 10);
    EXPECT_EQ(scenario.getEndVisibleTime(), 200);
    ASSERT_EQ(scenario.getSequences()->getNbObjects(), 2);
    IZelSequence& sequence = *scenario.getSequences()->getZelObject(1);
    EXPECT_EQ(*sequence.getBasicData()->getId(), idOf(kIdB));
    EXPECT_STREQ(sequence.getBasicData()->getName(), "B");
    EXPECT_EQ(sequence.getObjectId(), idOf(kIdC));
    EXPECT_EQ(sequence.getTargetType(), 3);
    EXPECT_EQ(sequence.getViewFlags(), 3);
    ASSERT_EQ(scenario.getAnimatedElements()->getNbObjects(), 1);
    IZelAnimatedElement& element = *scenario.getAnimatedElements()->getZelObject(0);
    EXPECT_EQ(element.getElementType(), 6);
    EXPECT_EQ(element.getId(), idOf(kIdB));
    ASSERT_EQ(element.getInterpolatedValues()->getNbObjects(), kNbKinds);
    for (std::int32_t kind = 0; kind < kNbKinds; ++kind)
        expectValue(*element.getInterpolatedValues()->getZelObject(kind), kind);
    ASSERT_EQ(scenario.getSnds()->getNbObjects(), 1);
    EXPECT_EQ(scenario.getSnds()->getZelObject(0)->getId(), idOf(kIdA));
    EXPECT_STREQ(scenario.getSnds()->getZelObject(0)->getURL(), "a & b.wav");
    EXPECT_EQ(scenario.getSnds()->getZelObject(0)->getStartFrame(), 5);
    ASSERT_EQ(scenario.getTimeGuides()->getNbObjects(), 1);
    EXPECT_EQ(scenario.getTimeGuides()->getZelObject(0)->getTime(), 7);
    EXPECT_EQ(sectionOf(other.save(), "Scenarios"), sectionOf(saved, "Scenarios"));
}

TEST(AnimationOfADocument, ANewScenarioKeepsItsTimes)
{
    CClientDocument document, other;
    document->getScenarios()->newZelObject(-1);
    std::string saved = document.save();
    for (const char* without : {"", "<Max.Time>500</Max.Time>"}) {
        if (const std::size_t at = saved.find(without); at != std::string::npos)
            saved.erase(at, std::strlen(without));
        ASSERT_TRUE(other.read(saved)) << without;
        const IZelScenario* scenario = other->getScenarios()->getZelObject(0);
        EXPECT_EQ(scenario->getMaxTime(), 500) << without;
        EXPECT_EQ(scenario->getEndVisibleTime(), 500) << without;
    }
    EXPECT_EQ(saved.find("Max.Time"), std::string::npos);
}

TEST(AnimationOfADocument, AnUnknownKindOfElementEndsTheLoad)
{
    std::string bad = dateScenario("1");
    bad.replace(bad.find("\"Heliodon\""), 10, "\"Cloud\"");
    CClientDocument document;
    EXPECT_FALSE(document.read(zelFile(paths("Paths.3D", {kIdA}) + bad)));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Invalid label (Cloud) [Sequence..Mapping.Node]"));
    EXPECT_EQ(document->get3DPaths()->getNbObjects(), 0); // are read behind the scenarios
}

TEST(AnimationOfADocument, DatesOfOlderLibrariesAreThoseOfTheClockOnTheWall)
{
    constexpr std::int64_t kHour = 3600;
    constexpr std::int64_t kWinter = 1104580800; // 1 January 2005, 12:00 universal time
    constexpr std::int64_t kSummer = 1120219200; // 1 July 2005, 12:00 universal time
    const struct {
        const char* zone;
        std::int64_t date, offset;
    } cases[] = {
        {"UTC0", kSummer, 0},
        {ZelTest::kParis, kWinter, kHour},
        {ZelTest::kParis, kSummer, kHour}, // the daylight hour is taken off
        {"EST5EDT,M4.1.0,M10.5.0", kSummer, -5 * kHour},
        {"<+0530>-5:30", kWinter, 5 * kHour + kHour / 2},
        {"<+14>-14", kSummer, 14 * kHour},
    };
    for (const auto& [zone, date, offset] : cases) {
        SCOPED_TRACE(zone);
        std::string saved;
        {
            const CTimeZone here(zone);
            CClientDocument older, newer;
            const std::string scenario = dateScenario(std::to_string(date));
            ASSERT_TRUE(older.read(zelFile(scenario, libraryHead("5.1.0"))));
            ASSERT_TRUE(newer.read(zelFile(scenario, libraryHead("5.1.1"))));
            EXPECT_EQ(dateOf(older), date + offset);
            EXPECT_EQ(dateOf(newer), date);
            saved = older.save();
        }
        const CTimeZone elsewhere("<-07>7");
        CClientDocument again;
        ASSERT_TRUE(again.read(saved));
        EXPECT_EQ(dateOf(again), date + offset); // universal from the first save on
    }
}

TEST(AnimationOfADocument, DatesPast32BitsNeedALibraryThatHasThem)
{
    const CTimeZone here("UTC0");
    CClientDocument document;
    ASSERT_TRUE(document.read(zelFile(dateScenario("5000000000"), libraryHead("5.1.1"))));
    EXPECT_EQ(dateOf(document), 5'000'000'000);
    ASSERT_TRUE(document.read(zelFile(dateScenario("5000000000"), libraryHead("5.1.0"))));
    EXPECT_NE(dateOf(document), 5'000'000'000);
}

TEST(AnimationOfADocument, PathsOfTheOldNameGoOutUnderTheNewOneWhereTheyStood)
{
    const struct {
        std::string sections;
        std::vector<std::string> order; // of the paths and what stands beside them
    } cases[] = {
        {"<A/>" + paths("3D.Paths", {kIdA, kIdB}) + "<B/>", {"A", "Paths.3D", "B"}},
        {"<A/>" + paths("Paths.3D", {kIdA, kIdB}) + "<B/>", {"A", "Paths.3D", "B"}},
        {paths("Paths.3D", {kIdC}) + "<A/>" + paths("3D.Paths", {kIdA, kIdB}) + "<B/>",
         {"Paths.3D", "A", "B"}},
        {"<A/>" + paths("3D.Paths", {kIdA, kIdB}) + "<B/>" + paths("Paths.3D", {kIdC}),
         {"A", "Paths.3D", "B"}},
    };
    for (const auto& [sections, order] : cases) {
        SCOPED_TRACE(sections);
        CClientDocument document;
        ASSERT_TRUE(document.read(zelFile(sections)));
        ASSERT_EQ(document->get3DPaths()->getNbObjects(), 2);
        IZel3DPath* path = document->get3DPaths()->getZelObject(1);
        EXPECT_EQ(*path->getBasicData()->getId(), idOf(kIdB));
        EXPECT_TRUE(path->isClosed());
        EXPECT_EQ(path->getBezierPoints()->getZelObject(0)->getPosition().z, 3.0);
        std::vector<std::string> found;
        const std::string saved = document.save();
        for (const std::string& name : sectionNames(saved))
            if (name == "A" || name == "B" || name.find("Paths") != std::string::npos)
                found.push_back(name);
        EXPECT_EQ(found, order);
        EXPECT_EQ(sectionOf(saved, "Paths.3D"), paths("Paths.3D", {kIdA, kIdB}));
    }
}

TEST(AnimationOfADocument, LinksThatLeadOutOfTheirPanoramaAreDroppedOnLoad)
{
    CClientDocument document;
    IZelPanoramaV2& first = *document->getPanoramas()->newZelObject(-1);
    addNode(first, kIdA);
    addNode(first, kIdB);
    addLink(first, kIdA, kIdB);
    addLink(first, kIdA, kIdC); // a node of the other panorama
    addLink(first, kIdB, kIdB);
    addLink(first, kNoId, kIdA);
    addLink(first, kIdB, kIdA);
    IZelPanoramaV2& second = *document->getPanoramas()->newZelObject(-1);
    addNode(second, kIdC);
    addLink(second, kIdC, kIdC);
    addLink(*document->getPanoramas()->newZelObject(-1), kIdA, kIdB); // without nodes
    const std::string saved = document.save();
    EXPECT_EQ(endsOf(first).size(), 5U); // nothing but a load removes any
    CClientDocument other;
    ASSERT_TRUE(other.read(saved));
    EXPECT_THAT(other.takeMessages(), IsEmpty());
    ASSERT_EQ(other->getPanoramas()->getNbObjects(), 3);
    EXPECT_THAT(endsOf(*other->getPanoramas()->getZelObject(0)), ElementsAre("AB", "BB", "BA"));
    EXPECT_THAT(endsOf(*other->getPanoramas()->getZelObject(1)), ElementsAre("CC"));
    EXPECT_THAT(endsOf(*other->getPanoramas()->getZelObject(2)), IsEmpty());
}

TEST(AnimationOfADocument, CameraPathsComeBackAndTheirValuesAreBroughtIntoRange)
{
    CClientDocument document;
    IZelAnimation& animation = *document.more().getAnimations()->newZelObject(-1);
    animation.setName("Flight");
    for (const char* name : {"Up", "Down"})
        animation.getPaths()->newZelObject(-1)->setName(name);
    IZelCameraPath& path = *animation.getPaths()->getZelObject(1);
    path.setSpeed(2.5);
    *path.getPoints()->newZelObject(-1) = {1, 2, 3};
    path.getKeys()->newZelObject(-1)->setPitch(90.0);
    animation.setCurrentPath(1);
    std::string saved = document.save();
    const auto replace = [&](const std::string& old, const std::string& fresh) {
        const std::size_t at = saved.find(old);
        ASSERT_NE(at, std::string::npos) << old;
        saved.replace(at, old.size(), fresh);
    };
    replace("<Pitch>90.000000", "<Pitch>400");
    replace("<Movie.Duration>4.000000", "<Movie.Duration>-1");
    replace("<Current>1<", "<Current>3<");
    CClientDocument other;
    ASSERT_TRUE(other.read(saved));
    EXPECT_THAT(other.takeMessages(),
                ElementsAre("Method setDuration has clipped a value out of range.",
                            "IZelAnimation::setCurrentPath - index invalid"));
    ASSERT_EQ(other.more().getAnimations()->getNbObjects(), 1);
    IZelAnimation& read = *other.more().getAnimations()->getZelObject(0);
    EXPECT_STREQ(read.getName(), "Flight");
    EXPECT_EQ(read.getCurrentPathIndex(), 1);
    ASSERT_EQ(read.getPaths()->getNbObjects(), 2);
    EXPECT_EQ(read.getPaths()->getZelObject(0)->getDuration(), 0.0);
    IZelCameraPath& down = *read.getPaths()->getZelObject(1);
    EXPECT_STREQ(down.getName(), "Down");
    EXPECT_EQ(down.getDuration(), 4.0);
    EXPECT_EQ(down.getSpeed(), 2.5);
    ASSERT_EQ(down.getPoints()->getNbObjects(), 1);
    EXPECT_EQ(down.getPoints()->getZelObject(0)->y, 2.0);
    ASSERT_EQ(down.getKeys()->getNbObjects(), 1);
    EXPECT_EQ(down.getKeys()->getZelObject(0)->getPitch(), 360.0);
}

TEST(AnimationOfADocument, WhatOutlivesItKeepsWhatItIsGivenInSilence)
{
    CClientDocument document;
    IZelSequence* sequence =
        document->getScenarios()->newZelObject(-1)->getSequences()->newZelObject(-1);
    IZel3DPath* path = document->get3DPaths()->newZelObject(-1);
    sequence->AddRef();
    path->AddRef();
    sequence->setFocal(200.0);
    EXPECT_EQ(sequence->getFocal(), 180.0);
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("Method setFocal has clipped a value out of range."));
    document.release();
    sequence->setFocal(200.0);
    EXPECT_EQ(sequence->getFocal(), 200.0);
    path->getBezierPoints()->newZelObject(-1)->setPosition({4, 5, 6});
    EXPECT_EQ(path->getBezierPoints()->getZelObject(0)->getPosition().x, 4.0);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
    sequence->Release();
    path->Release();
}
