#include "tools/showParts.h"

#include "tools/CAnimationTargets.h"
#include "tools/CChannelNames.h"
#include "tools/CViewTargets.h"
#include "tools/showValues.h"

#include <zel/IZelMgrEx.h>

namespace tool {

using nlohmann::ordered_json;

// Number 1 has no meaning.
static constexpr const char* kTargetTypes[] = {"point", "none", "path", "object"};

namespace {

// The names of what animations name.
struct CTargets {
    explicit CTargets(OvZel::IZelMgr& document) : views(document), animation(document) {}

    CViewTargets views;
    CAnimationTargets animation;
    CChannelNames channels;
};

} // namespace

static ordered_json cameraPathOutline(OvZel::IZelCameraPath& path, const CViewTargets& targets)
{
    ordered_json object = {{"name", path.getName()},
                           {"active", path.getActive()},
                           {"duration", path.getDuration()},
                           {"images", path.getNbXImage()},
                           {"closed", path.getPathClosed()},
                           {"points", path.getPoints()->getNbObjects()},
                           {"keys", path.getKeys()->getNbObjects()}};
    addViewInfo(*path.getViewInfo(), targets, object);
    return object;
}

static ordered_json animationOutline(OvZel::IZelAnimation& animation, const CViewTargets& targets)
{
    return {{"name", animation.getName()},
            {"currentPath", animation.getCurrentPathIndex()},
            {"paths", outlines(*animation.getPaths(), [&](OvZel::IZelCameraPath& path) {
                 return cameraPathOutline(path, targets);
             })}};
}

static ordered_json sequenceOutline(OvZel::IZelSequence& sequence, const CTargets& targets)
{
    ordered_json object = named(sequence);
    object["start"] = sequence.getStartFrame();
    object["end"] = sequence.getEndFrame();
    object["position"] = pointValue(sequence.getPosition());
    object["target"] = pointValue(sequence.getTarget());
    object["targetType"] = word(kTargetTypes, sequence.getTargetType());
    object["targetObject"] = targets.animation.getInstances().text(sequence.getObjectId());
    object["focal"] = sequence.getFocal();
    addViewInfo(*sequence.getViewInfo(), targets.views, object);
    return object;
}

static ordered_json channelOutline(OvZel::IZelInterpolatedValue& value, CTargets& targets)
{
    return {{"channel", targets.channels.text(value.getChannel())},
            {"keyFrames", value.getKeyFrames()->getNbObjects()},
            {"loop", value.getLoop()},
            {"loops", value.getNbLoops()},
            {"path", targets.animation.getPaths().text(value.getPathId())}};
}

static ordered_json elementOutline(OvZel::IZelAnimatedElement& element, CTargets& targets)
{
    const std::int32_t kind = element.getElementType();
    const CNames& objects = targets.animation.getObjects(kind);
    return {{"uuid", idText(element.getId())},
            {"type", CAnimationTargets::getKind(kind)},
            {"name", objects.text(element.getId())},
            {"channels",
             outlines(*element.getInterpolatedValues(), [&](OvZel::IZelInterpolatedValue& value) {
                 return channelOutline(value, targets);
             })}};
}

static ordered_json soundOutline(OvZel::IZelSnd& sound)
{
    return {
        {"uuid", idText(sound.getId())}, {"url", sound.getURL()}, {"start", sound.getStartFrame()}};
}

static ordered_json scenarioOutline(OvZel::IZelScenario& scenario, CTargets& targets)
{
    ordered_json object = {{"name", scenario.getName()},
                           {"length", scenario.getMaxTime()},
                           {"framesPerSecond", scenario.getFPS()},
                           {"currentFrame", scenario.getCurrentFrame()},
                           {"currentSequence", scenario.getCurrentSequence()},
                           {"guides", ordered_json::array()}};
    forEach(*scenario.getTimeGuides(), [&](OvZel::IZelScenarioTimeGuide& guide, std::int32_t) {
        object["guides"].push_back(guide.getTime());
    });
    object["sequences"] = outlines(*scenario.getSequences(), [&](OvZel::IZelSequence& sequence) {
        return sequenceOutline(sequence, targets);
    });
    object["elements"] =
        outlines(*scenario.getAnimatedElements(), [&](OvZel::IZelAnimatedElement& element) {
            return elementOutline(element, targets);
        });
    object["sounds"] = outlines(*scenario.getSnds(), soundOutline);
    return object;
}

static ordered_json pathOutline(OvZel::IZel3DPath& path)
{
    return {{"uuid", idText(*path.getBasicData()->getId())},
            {"closed", path.isClosed()},
            {"points", path.getBezierPoints()->getNbObjects()}};
}

void showAnimation(OvZel::IZelMgr& document, ordered_json& outline)
{
    CTargets targets(document);
    outline["3DPaths"] = outlines(*document.get3DPaths(), pathOutline);
    if (OvZel::IZelMgrEx* more = document.getMgrEx(OvZel::eVersionZel))
        outline["animations"] =
            outlines(*more->getAnimations(), [&](OvZel::IZelAnimation& animation) {
                return animationOutline(animation, targets.views);
            });
    outline["scenarios"] = outlines(*document.getScenarios(), [&](OvZel::IZelScenario& scenario) {
        return scenarioOutline(scenario, targets);
    });
}

} // namespace tool
