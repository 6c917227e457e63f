#pragma once

namespace OvZel {
class IZelMgr;
}

namespace tool {

class CFindings;

/// What `zel check` looks at in a loaded document, by subject.

void checkIds(OvZel::IZelMgr& document, CFindings& findings);
void checkSections(OvZel::IZelMgr& document, CFindings& findings);
void checkMeshes(OvZel::IZelMgr& document, CFindings& findings);
void checkMaterials(OvZel::IZelMgr& document, CFindings& findings);
void checkLights(OvZel::IZelMgr& document, CFindings& findings);
void checkInstances(OvZel::IZelMgr& document, CFindings& findings);
void checkViews(OvZel::IZelMgr& document, CFindings& findings);
void checkPanoramas(OvZel::IZelMgr& document, CFindings& findings);
void checkAnimation(OvZel::IZelMgr& document, CFindings& findings);

} // namespace tool
