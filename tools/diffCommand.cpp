#include "tools/commands.h"

#include "tools/CNoMeshes.h"
#include "tools/CToolDocument.h"
#include "tools/CToolOutput.h"
#include "tools/diffDocuments.h"
#include "tools/oneLine.h"

#include <algorithm>
#include <set>

namespace tool {

using nlohmann::ordered_json;
using EKind = CDifference::EKind;

static const char* word(EKind kind)
{
    constexpr const char* kWords[] = {"added", "removed", "moved", "changed"};
    return kWords[static_cast<int>(kind)];
}

static ordered_json jsonOf(const CDifference& difference)
{
    const auto value = [](const std::optional<std::string>& text) {
        return text ? ordered_json(*text) : ordered_json();
    };
    return {{"kind", word(difference.kind)},  {"list", difference.list},
            {"name", difference.name},        {"uuid", difference.id},
            {"index", difference.index},      {"path", difference.field.path},
            {"a", value(difference.field.a)}, {"b", value(difference.field.b)}};
}

static std::string shown(const std::optional<std::string>& value)
{
    return value ? "\"" + *value + "\"" : "none";
}

static std::string lineOf(const CDifference& difference)
{
    std::string text = word(difference.kind) + (" " + difference.list) + "[";
    text += difference.name.empty() ? "#" + std::to_string(difference.index) : difference.name;
    text += "]";
    if (!difference.field.path.empty())
        text += "/" + difference.field.path;
    if (difference.field.a || difference.field.b)
        text += ": " + shown(difference.field.a) + " -> " + shown(difference.field.b);
    return oneLine(text) + "\n";
}

static void load(CToolDocument& document, const std::string& file,
                 OvZel::IZelExtStorageReader* reader = nullptr)
{
    CFileReadStream stream(file);
    document.read(stream, file, reader);
}

static bool isId(const std::optional<std::string>& text)
{
    return text && text->size() == 32 &&
           text->find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

static bool isOfIds(const CDifference& difference)
{
    return difference.kind == EKind::eChanged && isId(difference.field.a) &&
           isId(difference.field.b);
}

// Objects whose file has no identifier get a new one with every load. Those are the identifiers
// that are not the same when the file is loaded once more.
static std::set<std::string> madeUpIds(OvZel::IZelMgr& document, const std::string& file)
{
    CNoMeshes noMeshes;
    CToolDocument again;
    again.feedback().setReceiver([](const std::string&) {}); // the first load has told it all
    load(again, file, &noMeshes);
    std::set<std::string> ids;
    for (const CDifference& each : diffDocuments(document, *again, 0.0))
        if (isOfIds(each))
            ids.insert(*each.field.a);
    return ids;
}

static std::vector<CDifference> differencesOf(const CDiff& request)
{
    CToolDocument a;
    CToolDocument b;
    load(a, request.a);
    load(b, request.b);
    std::vector<CDifference> all = diffDocuments(*a, *b, request.tolerance);
    if (std::none_of(all.begin(), all.end(), isOfIds))
        return all;
    const std::set<std::string> inA = madeUpIds(*a, request.a);
    const std::set<std::string> inB = madeUpIds(*b, request.b);
    const auto isMadeUp = [&](const CDifference& each) {
        return isOfIds(each) && (inA.count(*each.field.a) > 0 || inB.count(*each.field.b) > 0);
    };
    all.erase(std::remove_if(all.begin(), all.end(), isMadeUp), all.end());
    return all;
}

static std::string jsonOf(const CDiff& request, const std::vector<CDifference>& differences)
{
    ordered_json object = {{"a", request.a}, {"b", request.b}};
    object["differences"] = ordered_json::array();
    for (const CDifference& each : differences)
        object["differences"].push_back(jsonOf(each));
    return jsonLine(object);
}

EExit diffCommand(const CDiff& request, CToolOutput& output)
{
    const std::vector<CDifference> differences = differencesOf(request);
    if (request.asJson)
        output.write(jsonOf(request, differences));
    else
        for (const CDifference& each : differences)
            output.write(lineOf(each));
    return differences.empty() ? eDone : eFindings;
}

} // namespace tool
