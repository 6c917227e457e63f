#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace OvZel {
class IZelMgr;
}

namespace tool {

/// What an import makes of the objects of one category.
struct CImportCount {
    std::string category;
    std::int32_t added = 0;
    std::int32_t overwritten = 0; ///< objects of the destination that have a partner in the source
    std::int32_t kept = 0;        ///< the others
    /// Names of several objects of one document. Of the destination's the first is paired, of the
    /// source's the last is what remains, but for materials, where the first counts.
    std::vector<std::string> ambiguous;
    /// How many objects the destination has now, for the number of those that were added.
    std::function<std::int32_t()> size;
};

/// How many objects the destination had before the import; those behind them it has brought.
struct CSizeBefore {
    std::int32_t instances;
    std::int32_t grounds;
};

/// What the import of these categories, a sum of IZelMgr::eImport, will do to the destination as
/// it is now; the numbers added are known only afterwards. Instances must not be asked for together
/// with other categories, since they change what the materials find. Materials of objects that came
/// with the import are not counted.
std::vector<CImportCount> importCounts(OvZel::IZelMgr& destination, OvZel::IZelMgr& source,
                                       std::int32_t flags, const CSizeBefore& before);

/// The parts of it for the lists that aren't paired by name alone.
CImportCount countInstances(OvZel::IZelMgr& destination, OvZel::IZelMgr& source);
/// For each instance whether it places a component that the document does not have.
std::vector<bool> instancesWithoutComponent(OvZel::IZelMgr& document);
CImportCount countLayers(OvZel::IZelMgr& destination, OvZel::IZelMgr& source);
CImportCount countMaterials(OvZel::IZelMgr& destination, OvZel::IZelMgr& source,
                            const CSizeBefore& before);

/// The geometry level of components that an import takes no account of.
constexpr std::int32_t kIgnoredLevel = 2;

} // namespace tool
