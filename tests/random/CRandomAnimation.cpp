#include "tests/random/CRandomDocument.h"

#include <algorithm>
#include <iterator>

namespace ZelTest {

using namespace OvZel;

void CRandomDocument::fill(IZelAnimation& animation)
{
    animation.setName(random.text());
    extend(*animation.getPaths());
    animation.setCurrentPath(random.integer(0, animation.getPaths()->getNbObjects()));
    fill(*animation.getViewOptions());
}

void CRandomDocument::fill(IZelCameraPath& path)
{
    path.setName(random.text());
    path.setViewFlag(random.flag());
    path.setActive(random.flag());
    path.setDuration(random.number(0.0, 1e6));
    path.setNbXImage(random.integer(0, 1000));
    path.setSpeedOn(random.flag());
    path.setSpeed(random.number());
    path.setPathClosed(random.flag());
    extend(*path.getPoints());
    extend(*path.getKeys());
    fill(*path.getViewInfo());
    path.setCurrentTime(random.number());
}

void CRandomDocument::fill(IZelCamKey& key)
{
    key.setPitch(random.number(0.0, 360.0));
    key.setFocal(random.number());
    key.setKeyType(random.integer(0, 4));
    key.setFadingDuration(random.integer());
    key.setFadingImages(random.integer());
    key.setHorizontalAngle(random.number());
    key.setVerticalAngle(random.number());
    key.setAnticipation(random.number(0.0, 1.0));
    key.setBezierSection(random.integer(0, 100));
    key.setBezierT(random.number(0.0, 1.0));
    key.setBezierTransition(random.integer(0, 100));
    key.setBezierTransitionT(random.number(0.0, 1.0));
    key.setTarget(random.point());
}

void CRandomDocument::fill(IZel3DPath& path)
{
    fillId(path);
    fillUIValue(path);
    path.setClosed(random.flag());
    extend(*path.getBezierPoints());
}

void CRandomDocument::fill(IZelBezierPoint& point)
{
    point.setPosition(random.point());
    point.setCPBefore(random.point());
    point.setCPAfter(random.point());
    point.setAreLocked(random.flag());
}

void CRandomDocument::fill(IZelScenario& scenario)
{
    scenario.setName(random.text());
    extend(*scenario.getSequences());
    extend(*scenario.getAnimatedElements());
    scenario.setCurrentFrame(random.integer());
    scenario.setCurrentSequence(random.integer());
    extend(*scenario.getSnds());
    scenario.setMaxTime(random.integer());
    scenario.setFPS(random.integer());
    scenario.setStartVisibleTime(random.integer());
    scenario.setEndVisibleTime(random.integer());
    extend(*scenario.getTimeGuides());
}

void CRandomDocument::fill(IZelSequence& sequence)
{
    constexpr std::int32_t kTargetTypes[] = {0, 2, 3};
    fillId(sequence);
    fillView(sequence);
    sequence.setStartFrame(random.integer());
    sequence.setEndFrame(random.integer());
    sequence.setPosition(random.point());
    sequence.setTargetType(kTargetTypes[random.below(3)]);
    sequence.setTarget(random.point());
    sequence.setTargetDistance(random.number());
    sequence.setHorizontalAngle(random.number());
    sequence.setVerticalAngle(random.number());
    sequence.setPathTangent(random.point());
    sequence.setViewFlags(random.integer());
    sequence.setFlag1(random.flag());
    if (random.flag())
        sequence.setFlag0();
    sequence.setRoll(random.number());
    sequence.setFocal(random.number(0.0, 180.0));
    sequence.setObjectId(random.reference());
    sequence.setArchitectFlag(random.flag());
}

void CRandomDocument::fill(IZelAnimatedElement& element)
{
    element.setId(random.reference());
    element.setElementType(random.integer(1, 6));
    extend(*element.getInterpolatedValues());
}

void CRandomDocument::fill(IZelInterpolatedValue& value)
{
    // Two channels have one name in the file, and a load gives the first.
    constexpr std::int32_t kSecondOfItsName = 190;
    const std::int32_t channel = random.integer(1, 279);
    value.setChannel(channel == kSecondOfItsName ? kSecondOfItsName - 1 : channel);
    extend(*value.getKeyFrames());
    fill(*value.getDefaultValue());
    value.setLoop(random.flag());
    value.setNbLoops(random.integer());
    value.setPathId(random.reference());
}

void CRandomDocument::fill(IZelKeyFrame& key)
{
    const std::int32_t type = random.integer(0, 7);
    key.setValueType(type);
    IZelKeyFrame::uValue value;
    fillValue(value, type);
    key.setValue(value);
    key.setTime(random.integer());
    key.setVisible(random.flag());
    key.setInterpolationType(random.integer(0, 5));
    fillValue(value, type);
    key.setCPBefore(value);
    fillValue(value, type);
    key.setCPAfter(value);
    key.setAreLocked(random.flag());
}

void CRandomDocument::fillValue(IZelKeyFrame::uValue& value, std::int32_t type)
{
    value = {};
    if (type == 0) {
        std::generate(std::begin(value.vector), std::end(value.vector),
                      [&] { return random.number(); });
    } else if (type == 1) {
        std::generate(std::begin(value.color), std::end(value.color),
                      [&] { return random.byte(); });
    } else if (type == 2) {
        value.real = random.single();
    } else if (type == 3) {
        value.boolean = random.flag() ? 1 : 0;
    } else if (type == 5) {
        value.date = random.word64();
    } else if (type == 6) {
        const CZelUUID id = random.reference();
        std::copy(std::begin(id.bytes), std::end(id.bytes), value.id);
    } else {
        value.integer = random.integer();
    }
}

void CRandomDocument::fill(IZelSnd& sound)
{
    sound.setId(random.reference());
    sound.setURL(random.url());
    sound.setStartFrame(random.integer());
}

void CRandomDocument::fill(IZelScenarioTimeGuide& guide)
{
    guide.setTime(random.integer());
}

} // namespace ZelTest
