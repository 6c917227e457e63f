#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CImportPair.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>

namespace {

using namespace OvZel;
using namespace ZelTest;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kHeader = "category            added  overwritten     kept  ambiguous\n";

/// Of each category an object that both documents have, with a value of its own, and one that only
/// this document has.
void fill(IZelMgr& document, double value, const char* own, int number)
{
    const auto color = static_cast<std::uint8_t>(value);
    IZelZelObjectDefinition& definition = addComponent(document, "", 1);
    const CZelUUID definitionId = idOfNumber(90);
    definition.getBasicData()->setId(&definitionId);
    definition.getName()->setCurrentText("Shed");
    IZelLayer& layer = add(document.getLayers(), "Trees", idOfNumber(80));
    std::int32_t id = 0;
    for (const char* name : {"Both", own}) {
        add(document.getLights(), name, idOfNumber(number + id)).setPower(value);
        add(document.getHeliodons(), name, idOfNumber(number + 2 + id)).setNorthAngle(value);
        IZelObjectInstance& instance =
            addInstance(document, name, idOfNumber(id ? number + 4 : 70), idOf(layer));
        instance.setTranslation({value, 0.0, 0.0});
        addView(document.getCameras(), name).setFocal(value);
        addView(document.getParallelViews(), name).setSize(value);
        addView(document.getViewObjects(), name).setRadius(value);
        IZelPanoramaV2& panorama = addView(document.getPanoramas(), name);
        panorama.setFocal(value);
        add(panorama.getNodes(), "Node", idOfNumber(60));
        IZelSequence& sequence = addView(firstScenario(document).getSequences(), name);
        const CZelUUID sequenceId = idOfNumber(id ? number + 6 : 75);
        sequence.getBasicData()->setId(&sequenceId);
        sequence.setRoll(value);
        IZelProperty& material = add(definition.getProperties(), name);
        material.setDiffuseColor(CZelColor::rgb(color, 7, 7));
        material.getTCE()->getRootNode()->getChild(0)->setId(idOfNumber(50 + id));
        ++id;
    }
}

class ToolImport : public testing::Test {
protected:
    ToolImport()
    {
        fill(*mPair.destination.get(), 20.0, "Tuned", 10);
        fill(*mPair.source.get(), 30.0, "Fresh", 20);
        save();
    }
    void save()
    {
        mDestination = mFolder.put("house.zel", mPair.destination.save());
        mSource = mFolder.put("export.zel", mPair.source.save());
        EXPECT_THAT(mPair.takeMessages(), IsEmpty());
    }
    CRun runImport(std::vector<std::string> options, const std::string& out) const
    {
        options.insert(options.begin(), {"import", "--reference", mSource, "--into", mDestination});
        if (!out.empty())
            options.insert(options.end(), {"--output", out});
        return runTool(std::move(options));
    }
    CRun runImport(std::vector<std::string> options = {}) const
    {
        return runImport(std::move(options), mOut);
    }
    /// What differs from the destination, with the identifiers of the library's making as "ID".
    std::string changes() const
    {
        const CRun run = runTool({"diff", mDestination, mOut});
        return std::regex_replace(run.output, std::regex("[0-9A-F]{32}"), "ID");
    }
    static json categories(const CRun& run) { return json::parse(run.output)["categories"]; }

    CImportPair mPair;
    CTempFolder mFolder;
    std::string mDestination;
    std::string mSource;
    std::string mOut = mFolder.file("out.zel");
};

TEST_F(ToolImport, EachCategoryChangesWhatItPromises)
{
    const struct {
        const char* flags;
        const char* option;
        const char* table;
        const char* changes;
    } cases[] = {
        {"001", "--materials", "materials               0            1        1\n",
         "changed definitions[Shed]/Object.Definition/Properties/Property[Both]/Node/Diffuse/@R: "
         "\"20\" -> \"30\"\n"},
        {"010", "--lights", "lights                  1            1        1\n",
         "changed lights[Both]/Power: \"20.000000\" -> \"30.000000\"\n"
         "added lights[Fresh]\n"},
        {"0x020", "--heliodons", "heliodons               1            1        1\n",
         "changed heliodons[Both]/North.Angle: \"20.000000\" -> \"30.000000\"\n"
         "added heliodons[Fresh]\n"},
        {"0X40", "--objects",
         "layers                  0            0        1\n"
         "objectInstances         1            1        1\n"
         "grounds                 0            0        0\n",
         "changed objectInstances[Both]/Translation/@X: \"20.000000\" -> \"30.000000\"\n"
         "added objectInstances[Fresh]\n"},
        {"80", "--cameras", "cameras                 1            1        1\n",
         "changed cameras[Both]/Focal: \"20.000000\" -> \"30.000000\"\n"
         "added cameras[Fresh]\n"},
        {"100", "--parallel-views", "parallelViews           1            1        1\n",
         "changed parallelViews[Both]/Size: \"20.000000\" -> \"30.000000\"\n"
         "added parallelViews[Fresh]\n"},
        {"200", "--view-objects", "viewObjects             1            1        1\n",
         "changed viewObjects[Both]/Radius: \"20.000000\" -> \"30.000000\"\n"
         "added viewObjects[Fresh]\n"},
        {"400", "--panoramas", "panoramas               1            1        1\n",
         "changed panoramas[Both]/Focal: \"20.000000\" -> \"30.000000\"\n"
         "changed panoramas[Both]/Current.Focal: \"20.000000\" -> \"30.000000\"\n"
         "changed panoramas[Both]/PanoramaV2.Nodes/PanoramaV2.Node/@UUID: \"ID\" -> \"ID\"\n"
         "added panoramas[Fresh]\n"},
        {"800", "--sequences",
         "sequences               1            1        1\n"
         "scenarios               0            1        0\n",
         "added scenarios[#0]/Sequences/Sequence[Fresh]: none -> \"Fresh\"\n"
         "changed scenarios[#0]/Sequences/Sequence[Both]/Roll: \"20.000000\" -> \"30.000000\"\n"},
        {"0", "--flags=0xE", "", ""}, // bits without a category
    };
    for (const auto& [flags, option, table, changed] : cases)
        for (const CRun& run : {runImport({"--flags", flags}), runImport({option})}) {
            EXPECT_EQ(run.code, 0) << option;
            EXPECT_THAT(run.messages, IsEmpty());
            EXPECT_EQ(run.output, std::string(kHeader) + table);
            EXPECT_EQ(changes(), changed) << option;
        }
}

TEST_F(ToolImport, WithoutANamedCategoryAllAreImported)
{
    const CRun all = runImport();
    const std::string changed = changes();
    EXPECT_THAT(changed, HasSubstr("added lights[Fresh]\n"));
    EXPECT_THAT(changed, HasSubstr("Sequence[Both]/Roll"));
    for (const std::vector<std::string>& options :
         {std::vector<std::string>{"--flags", "FF1"},
          {"--flags", "0x8F0", "--materials", "--view-objects", "--panoramas",
           "--parallel-views"}}) {
        EXPECT_EQ(runImport(options).output, all.output);
        EXPECT_EQ(changes(), changed);
    }
}

TEST_F(ToolImport, TheOutputMayBeTheDestination)
{
    ASSERT_EQ(runImport().code, 0);
    const std::string apart = mOut;
    const std::string before = mFolder.put("before.zel", contents(mDestination));
    ASSERT_EQ(runImport({}, mDestination).code, 0);
    mOut = mDestination;
    mDestination = before;
    const std::string changed = changes();
    mOut = apart;
    EXPECT_EQ(changed, changes());
    EXPECT_THAT(mFolder.names(), ElementsAre("before.zel", "export.zel", "house.zel", "out.zel"));
}

TEST_F(ToolImport, ADryRunTellsTheSameAndWritesNothing)
{
    const CRun run = runImport();
    const std::string out = mFolder.put("out.zel", "as it was");
    const std::string before = contents(mDestination);
    for (const std::string& target : {out, mDestination, std::string()}) {
        const CRun dry = runImport({"--dry-run"}, target);
        EXPECT_EQ(dry.code, 0);
        EXPECT_EQ(dry.output, run.output);
    }
    EXPECT_EQ(contents(out), "as it was");
    EXPECT_EQ(contents(mDestination), before);
    EXPECT_THAT(mFolder.names(), ElementsAre("export.zel", "house.zel", "out.zel"));
    const json told = json::parse(runImport({"--dry-run", "--json", "--lights"}, "").output);
    EXPECT_EQ(told["dryRun"], true);
    EXPECT_EQ(told["into"], mDestination);
    EXPECT_EQ(told["categories"], json::parse(R"([{"category": "lights", "added": 1,
        "overwritten": 1, "kept": 1, "ambiguous": []}])"));
}

TEST_F(ToolImport, TellsNamesOfSeveralObjects)
{
    add(mPair.destination->getLights(), "Both").setPower(40.0);
    add(mPair.source->getLights(), "Fresh");
    add(mPair.destination->getLights(), "Tuned"); // no partner for either
    add(mPair.destination->getLayers(), "Trees", idOfNumber(81));
    save();
    EXPECT_EQ(categories(runImport({"--lights", "--json"})), json::parse(R"([{"category": "lights",
        "added": 1, "overwritten": 1, "kept": 3, "ambiguous": ["Both", "Fresh"]}])"));
    EXPECT_EQ(categories(runImport({"--objects", "--json"}))[0],
              json::parse(R"({"category": "layers",
        "added": 0, "overwritten": 0, "kept": 2, "ambiguous": ["Trees"]})"));
    EXPECT_THAT(runImport({"--lights"}).output, HasSubstr("3  \"Both\", \"Fresh\"\n"));
}

TEST_F(ToolImport, TellsWhatCameAlong)
{
    add(mPair.source->getHeliodons(), "Noon");
    add(mPair.source->getLightsGroups(), "Lamps", idOfNumber(1));
    add(mPair.destination->getLightsGroups(), "Old name", idOfNumber(2));
    add(mPair.source->getLightsGroups(), "New name", idOfNumber(2));
    IZelViewInfo& info = *mPair.source->getCameras()->getZelObject(0)->getViewInfo();
    info.setHeliodonName("Noon");
    for (const int group : {1, 2})
        addId(info.getLightsGroups(), idOfNumber(group));
    info.setEnvironment(add(mPair.source->getEnvironments()).getId());
    save();
    EXPECT_EQ(runImport({"--cameras"}).output,
              std::string(kHeader) + "cameras                 1            1        1\n"
                                     "lightsGroups            1            1        0\n"
                                     "environments            1            0        0\n"
                                     "heliodons               1            0        2\n");
}

TEST_F(ToolImport, MaterialsOfWhatTheImportBroughtAreNotCounted)
{
    for (IZelMgr* document : {mPair.destination.get(), mPair.source.get()}) {
        const bool isSource = document == mPair.source.get();
        for (int i = isSource ? 1 : 0; i < (isSource ? 3 : 2); ++i) {
            const std::string name = "Shed " + std::to_string(i);
            IZelObjectInstance& shed = addInstance(*document, name.c_str(), idOfNumber(30 + i),
                                                   idOfNumber(80), "ModelObject");
            addComponent(*document, "", 1);
            add(shed.asInternalComponentInstance()->getProperties(), "Paint");
        }
    }
    save();
    // Of the destination's four materials that of the shed in both and one of the component.
    EXPECT_EQ(categories(runImport({"--materials", "--objects", "--json"}))[3],
              json::parse(R"({"category": "materials", "added": 0, "overwritten": 2, "kept": 2,
                              "ambiguous": []})"));
}

TEST_F(ToolImport, WarnsThatInstancesWithoutLayersAreAddedAgain)
{
    mPair.source->getLayers()->removeAllObjects();
    save();
    const CRun run = runImport({"--objects"});
    EXPECT_EQ(run.messages,
              "zel: " + mSource + ": has no layers, so each import adds its instances again\n");
    EXPECT_THAT(run.output, HasSubstr("objectInstances         2            0        2\n"));
    mDestination = mOut;
    EXPECT_THAT(runImport({"--objects"}).output,
                HasSubstr("objectInstances         2            0        4\n"));
    EXPECT_THAT(runImport({"--lights"}).messages, IsEmpty());
}

TEST_F(ToolImport, KeepsThePreview)
{
    mDestination = sample("house.zel");
    ASSERT_EQ(runImport().code, 0);
    EXPECT_EQ(json::parse(runTool({"info", "--json", mOut}).output)["preview"],
              json::parse(R"({"width": 96, "height": 64})"));
}

TEST_F(ToolImport, WhatCannotBeDoneLeavesTheOutputAsItWas)
{
    const std::string text = mFolder.put("text.zel", "no document");
    const std::string out = mFolder.put("out", "as it was");
    const std::string newer =
        mFolder.put("newer.zel", "<?Zel library=\"6.5.0\" file=\"6.0\" min_version=\"6.0.0\" "
                                 "safe_version=\"6.0.0\"?><Zel.File><Working.Window/></Zel.File>");
    const std::string missing = mFolder.file("missing");
    const struct {
        std::vector<std::string> arguments;
        int code;
        const char* message;
    } cases[] = {
        {{"--into", mDestination, "--output", out}, 64, "--reference is required"},
        {{"--reference", mSource, "--output", out}, 64, "--into is required"},
        {{"--reference", mSource, "--into", mDestination}, 64, "--output is required"},
        {{"--reference", mSource, "--into", mDestination, "--output", out, "--flags", "12X"},
         64,
         "12X is no hexadecimal number"},
        {{"--reference", mSource, "--into", mDestination, "--output", out, "--flags", "0x"},
         64,
         "0x is no hexadecimal number"},
        {{"--reference", text, "--into", mDestination, "--output", out}, 65, "not readable"},
        {{"--reference", mSource, "--into", text, "--output", out}, 65, "not readable"},
        {{"--reference", mSource, "--into", newer, "--output", out}, 65, "newer library"},
        {{"--reference", missing, "--into", mDestination, "--output", out}, 74, "missing"},
        {{"--reference", mSource, "--into", missing, "--output", out}, 74, "missing"},
        {{"--reference", mSource, "--into", mDestination, "--output", mFolder.file("no/where")},
         74,
         "where: can't write"},
    };
    for (auto [arguments, code, message] : cases) {
        arguments.insert(arguments.begin(), "import");
        const CRun run = runTool(arguments);
        EXPECT_EQ(run.code, code) << message;
        EXPECT_THAT(run.messages, HasSubstr(message));
        EXPECT_THAT(run.output, IsEmpty()) << message;
        EXPECT_EQ(contents(out), "as it was") << message;
    }
}

} // namespace

#endif
