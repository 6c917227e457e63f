#include "tools/showParts.h"

#include "tools/CViewTargets.h"
#include "tools/showValues.h"

namespace tool {

using nlohmann::ordered_json;

static ordered_json nodeOutline(OvZel::IZelPanoNodeV2& node)
{
    ordered_json object = named(node);
    object["position"] = pointValue(node.getPosition());
    object["direction"] = pointValue(node.getDirection());
    return object;
}

static ordered_json linkOutline(OvZel::IZelPanoLinkV2& link, const CNames& nodes,
                                const CNames& paths)
{
    return {{"start", nodes.text(link.getStart())},
            {"end", nodes.text(link.getEnd())},
            {"path", paths.text(link.getPathId())}};
}

static ordered_json panoramaOutline(OvZel::IZelPanoramaV2& panorama, const CNames& paths)
{
    const CNames nodes(*panorama.getNodes());
    ordered_json object = named(panorama);
    object["startNode"] = nodes.text(panorama.getStartNode());
    object["currentNode"] = nodes.text(panorama.getCurrentNode());
    object["direction"] = pointValue(panorama.getDirection());
    object["focal"] = panorama.getFocal();
    object["nodes"] = outlines(*panorama.getNodes(), nodeOutline);
    object["links"] = outlines(*panorama.getLinks(), [&](OvZel::IZelPanoLinkV2& link) {
        return linkOutline(link, nodes, paths);
    });
    return object;
}

void showPanoramas(OvZel::IZelMgr& document, ordered_json& outline)
{
    const CViewTargets targets(document);
    const CNames paths(*document.get3DPaths());
    outline["panoramas"] = outlines(*document.getPanoramas(), [&](OvZel::IZelPanoramaV2& panorama) {
        ordered_json object = panoramaOutline(panorama, paths);
        addViewInfo(*panorama.getViewInfo(), targets, object);
        return object;
    });
}

} // namespace tool
