#include "tools/checkParts.h"

#include "tools/CFindings.h"
#include "tools/CNames.h"

#include <zel/IZelMgr.h>

namespace tool {

static void checkPanorama(OvZel::IZelPanoramaV2& panorama, const CNames& paths, CFindings& findings)
{
    const std::string name = "panorama " + idText(*panorama.getBasicData()->getId()) + " \"" +
                             panorama.getBasicData()->getName() + "\"";
    const auto check = [&](const char* code, const std::string& what, const CNames& known,
                           const OvZel::CZelUUID& id) {
        if (known.lacks(id))
            findings.add(code, name + what + idText(id) + ", which isn't there");
    };
    const CNames nodes(*panorama.getNodes());
    check("W131", " starts at the node ", nodes, panorama.getStartNode());
    check("W132", " has the current node ", nodes, panorama.getCurrentNode());
    forEach(*panorama.getLinks(), [&](OvZel::IZelPanoLinkV2& link, std::int32_t i) {
        check("W133", ": link " + std::to_string(i) + " runs along the 3D path ", paths,
              link.getPathId());
    });
}

void checkPanoramas(OvZel::IZelMgr& document, CFindings& findings)
{
    const CNames paths(*document.get3DPaths());
    forEach(*document.getPanoramas(), [&](OvZel::IZelPanoramaV2& panorama, std::int32_t) {
        checkPanorama(panorama, paths, findings);
    });
}

} // namespace tool
