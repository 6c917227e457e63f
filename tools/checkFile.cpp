#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/droppedSections.h"
#include "tools/forEach.h"
#include "tools/oneLine.h"

#include <zel/IZelMgr.h>

namespace tool {

static void checkId(const OvZel::CZelUUID& id, const std::string& owner, CFindings& findings)
{
    if (id.isNull())
        findings.add("W103", owner + " has a null identifier");
}

void checkIds(OvZel::IZelMgr& document, CFindings& findings)
{
    checkId(*document.getFileInfo()->getBasicData()->getId(), "the file", findings);
    forEach(*document.getImages(), [&](OvZel::IZelImage& image, std::int32_t i) {
        checkId(*image.getId(), "image " + std::to_string(i), findings);
    });
    forEach(*document.getDefinitions(), [&](OvZel::IZelZelObjectDefinition& each, std::int32_t i) {
        checkId(*each.getBasicData()->getId(), "definition " + std::to_string(i), findings);
    });
    for (const std::string& id : repeatedComponents(document))
        findings.add("W102", "more than one definition has the identifier " + id);
}

void checkSections(OvZel::IZelMgr& document, CFindings& findings)
{
    const CDropped dropped = droppedSections(document);
    for (const std::string& name : dropped.earlySections)
        findings.add("W104", "a save drops the section \"" + name + "\" of an early version");
    if (dropped.hasApplicationData)
        findings.add("W105", "a save drops the section \"Application.Data\"");
}

} // namespace tool
