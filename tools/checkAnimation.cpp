#include "tools/checkParts.h"

#include "tools/CAnimationTargets.h"
#include "tools/CFindings.h"

#include <zel/IZelMgr.h>

namespace tool {

static std::string nameOf(OvZel::IZelScenario& scenario, std::int32_t index)
{
    return "scenario " + std::to_string(index) + " \"" + scenario.getName() + "\"";
}

static void checkElement(OvZel::IZelAnimatedElement& element, const std::string& scenario,
                         const CAnimationTargets& targets, CFindings& findings)
{
    const std::int32_t kind = element.getElementType();
    const std::string object = CAnimationTargets::getKind(kind) + " " + idText(element.getId());
    // Whoever animates nothing animates what isn't there, so that null is no exception.
    if (!targets.getObjects(kind).has(element.getId()))
        findings.add("W128", scenario + " animates the " + object + ", which isn't there");
    forEach(*element.getInterpolatedValues(),
            [&](OvZel::IZelInterpolatedValue& value, std::int32_t i) {
                if (targets.getPaths().lacks(value.getPathId()))
                    findings.add("W129", scenario + ": channel " + std::to_string(i) + " of the " +
                                             object + " runs along the 3D path " +
                                             idText(value.getPathId()) + ", which isn't there");
            });
}

static void checkSequence(OvZel::IZelSequence& sequence, const std::string& scenario,
                          std::int32_t maxTime, CFindings& findings)
{
    if (sequence.getEndFrame() > maxTime)
        findings.add("W130", scenario + ": the sequence " +
                                 idText(*sequence.getBasicData()->getId()) + " \"" +
                                 sequence.getBasicData()->getName() + "\" ends at frame " +
                                 std::to_string(sequence.getEndFrame()) +
                                 ", behind the maximum time " + std::to_string(maxTime));
}

void checkAnimation(OvZel::IZelMgr& document, CFindings& findings)
{
    const CAnimationTargets targets(document);
    forEach(*document.getScenarios(), [&](OvZel::IZelScenario& scenario, std::int32_t i) {
        const std::string name = nameOf(scenario, i);
        forEach(*scenario.getSequences(), [&](OvZel::IZelSequence& sequence, std::int32_t) {
            checkSequence(sequence, name, scenario.getMaxTime(), findings);
        });
        forEach(*scenario.getAnimatedElements(),
                [&](OvZel::IZelAnimatedElement& element, std::int32_t) {
                    checkElement(element, name, targets, findings);
                });
    });
}

} // namespace tool
