#include "tools/commands.h"

#include "tools/CImportCount.h"
#include "tools/CNoMeshes.h"
#include "tools/CScratch.h"
#include "tools/CToolDocument.h"
#include "tools/CToolOutput.h"
#include "tools/elementText.h"
#include "tools/loadForSave.h"
#include "tools/oneLine.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace tool {

using nlohmann::ordered_json;
using OvZel::IZelMgr;

namespace {

// The lists that have no category of their own: what is in them comes along with what names it.
class CBroughtAlong {
public:
    CBroughtAlong(IZelMgr& destination, std::int32_t flags)
        : mDestination(destination), mFlags(flags), mBefore(texts())
    {
    }

    void addTo(std::vector<CImportCount>& counts) const
    {
        const CTexts after = texts();
        for (std::size_t i = 0; i < after.size(); ++i) {
            const CImportCount count = compare(mBefore[i].second, after[i]);
            if (count.added > 0 || count.overwritten > 0)
                counts.push_back(count);
        }
    }

private:
    using CTexts = std::vector<std::pair<std::string, std::vector<std::string>>>;

    bool isWanted(const std::string& list) const
    {
        if (list == "heliodons")
            return !(mFlags & IZelMgr::eImportHeliodons);
        return list == "lightsGroups" || list == "environments" || list == "scenarios" ||
               list == "3DPaths";
    }

    CTexts texts() const
    {
        CTexts all;
        CScratch scratch(mDestination);
        for (const CObjectList& list : objectLists(mDestination)) {
            if (!isWanted(list.name))
                continue;
            all.push_back({list.name, {}});
            for (const CListedObject& object : list.objects)
                all.back().second.push_back(elementText(scratch.write(list, object)));
        }
        return all;
    }

    // An import adds behind the last, so that what was there has kept its place.
    static CImportCount compare(const std::vector<std::string>& before,
                                const CTexts::value_type& after)
    {
        CImportCount count{after.first, 0, 0, 0, {}, {}};
        for (std::size_t i = 0; i < before.size(); ++i)
            ++(before[i] == after.second[i] ? count.kept : count.overwritten);
        count.added = static_cast<std::int32_t>(after.second.size() - before.size());
        return count;
    }

    IZelMgr& mDestination;
    std::int32_t mFlags;
    CTexts mBefore;
};

} // namespace

static void importStage(IZelMgr& destination, IZelMgr& source, std::int32_t flags,
                        const CSizeBefore& before, std::vector<CImportCount>& counts)
{
    std::vector<CImportCount> stage = importCounts(destination, source, flags, before);
    IZelMgr::doImportReference(&destination, &source, flags);
    for (CImportCount& each : stage) {
        each.added = each.size() - each.overwritten - each.kept;
        counts.push_back(std::move(each));
    }
}

// Components are not imported, so that an instance may come without the one that it places.
static std::size_t countWithout(IZelMgr& destination, std::vector<bool> before)
{
    const std::vector<bool> after = instancesWithoutComponent(destination);
    before.resize(after.size());
    std::size_t count = 0;
    for (std::size_t i = 0; i < after.size(); ++i)
        count += after[i] && !before[i] ? 1 : 0;
    return count;
}

// The instances come first, and in a stage of their own: what the other categories find depends on
// them.
static std::vector<CImportCount> importAll(IZelMgr& destination, IZelMgr& source,
                                           std::int32_t flags)
{
    std::vector<CImportCount> counts;
    const CBroughtAlong broughtAlong(destination, flags);
    const CSizeBefore before{destination.getObjectInstances()->getNbObjects(),
                             destination.getGrounds()->getNbObjects()};
    const std::int32_t instances = flags & IZelMgr::eImportInstances;
    if (instances)
        importStage(destination, source, instances, before, counts);
    importStage(destination, source, flags & ~instances, before, counts);
    broughtAlong.addTo(counts);
    return counts;
}

static std::string quoted(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "\"" : ", \"") + oneLine(name) + "\"";
    return text;
}

static std::string tableOf(const std::vector<CImportCount>& counts, std::size_t nbWithout)
{
    std::string text = "category            added  overwritten     kept  ambiguous\n";
    for (const CImportCount& each : counts) {
        char numbers[96];
        std::snprintf(numbers, sizeof numbers, "%-16s %8d %12d %8d", each.category.c_str(),
                      each.added, each.overwritten, each.kept);
        text += numbers;
        text += (each.ambiguous.empty() ? "" : "  " + quoted(each.ambiguous)) + "\n";
    }
    if (nbWithout > 0)
        text += "instances that came without their component: " + std::to_string(nbWithout) + "\n";
    return text;
}

static std::string jsonOf(const CImport& request, const std::vector<CImportCount>& counts,
                          std::size_t nbWithout)
{
    ordered_json object = {{"reference", request.source},
                           {"into", request.destination},
                           {"output", request.out},
                           {"dryRun", request.isDryRun}};
    object["categories"] = ordered_json::array();
    for (const CImportCount& each : counts)
        object["categories"].push_back({{"category", each.category},
                                        {"added", each.added},
                                        {"overwritten", each.overwritten},
                                        {"kept", each.kept},
                                        {"ambiguous", each.ambiguous}});
    object["instancesWithoutComponent"] = nbWithout;
    return jsonLine(object);
}

// Instances find their partners by their layers.
static void warnOfLayers(const CImport& request, IZelMgr& source)
{
    const bool hasInstances = source.getObjectInstances()->getNbObjects() > 0;
    if ((request.flags & IZelMgr::eImportInstances) && hasInstances &&
        source.getLayers()->getNbObjects() == 0)
        complain(request.source + ": has no layers, so each import adds its instances again");
}

// The transform of the destination would act on all that comes in. A matrix without any element of
// the identity switches it off.
static void switchMatrixOff(IZelMgr& document)
{
    double matrix[16];
    std::fill(std::begin(matrix), std::end(matrix), 2.0);
    document.setMatrix(matrix);
}

// The file is closed behind it, since it may be the one to replace.
static void loadReference(CToolDocument& source, const std::string& file)
{
    CFileReadStream stream(file);
    CNoMeshes noMeshes;
    source.read(stream, file, &noMeshes);
}

void importCommand(const CImport& request, CToolOutput& output)
{
    CToolDocument source;
    CToolDocument destination;
    loadReference(source, request.source);
    loadForSave(destination, request.destination,
                "zel rewrite --force makes a file to import into");
    warnOfLayers(request, *source);
    switchMatrixOff(*destination);
    const std::vector<bool> without = instancesWithoutComponent(*destination);
    const std::vector<CImportCount> counts = importAll(*destination, *source, request.flags);
    const std::size_t nbWithout = countWithout(*destination, without);
    if (!request.isDryRun)
        destination.save(request.out);
    output.write(request.asJson ? jsonOf(request, counts, nbWithout) : tableOf(counts, nbWithout));
}

} // namespace tool
