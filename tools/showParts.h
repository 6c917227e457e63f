#pragma once

#include <nlohmann/json.hpp>

namespace OvZel {
class IZelMgr;
class IZelProperty;
class IZelViewInfo;
template <class T>
class TZelObjectMgr;
} // namespace OvZel

namespace tool {

struct CViewTargets;

/// What `zel show` tells of the lists of a document, by subject. Each adds the lists of its subject
/// to the outline, under the names that the counts have.

void showMaterials(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showLights(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showSurroundings(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showDefinitions(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showInstances(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showViews(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showPanoramas(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);
void showAnimation(OvZel::IZelMgr& document, nlohmann::ordered_json& outline);

/// A material with the nodes of its tree. They are a list in the order of the tree, each with its
/// depth, since a tree may be too deep for a reader of nested objects.
nlohmann::ordered_json materialOutline(OvZel::IZelProperty& property);
/// Materials that stand in for others: their names alone.
nlohmann::ordered_json overrideNames(OvZel::TZelObjectMgr<OvZel::IZelProperty>& list);
/// Adds what a view uses of the document.
void addViewInfo(OvZel::IZelViewInfo& info, const CViewTargets& targets,
                 nlohmann::ordered_json& object);

} // namespace tool
