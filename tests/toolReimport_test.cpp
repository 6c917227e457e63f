#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/furnishedModel.h"
#include "tests/support/CImportPair.h"
#include "tests/toolRun.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <stdexcept>

// A furnished house is exported, tuned, exported again with other furniture, and imported into what
// was tuned.

namespace {

using namespace OvZel;
using namespace ZelTest;
using nlohmann::json;

CFurniture chair()
{
    return {"Chair", "Scopia.sh3f", "scopia/chair3/chair3.obj", 4.0F, 2.0F, 0.0F};
}

CFurniture wardrobe(const char* name)
{
    return {name, "Scopia.sh3f", "scopia/wardrobe1/wardrobe1.obj", 9.0F, 4.0F, 0.0F};
}

const CFurniture kBench = {
    "Bench", "BlendSwap-CC-0.sh3f", "blendswap-cc-0/bench/bench.obj", 2.0F, -1.0F, 0.0F};
const CFurniture kMan = {
    "Visitor", "Reallusion.sh3f", "reallusion/sitMale03/sitMale03.obj", 2.0F, -1.0F, 0.0F};

/// How often each line stands in a list of differences.
using CLines = std::map<std::string, int>;

template <class I>
std::vector<I*> allOf(TZelObjectMgr<I>* list)
{
    std::vector<I*> objects;
    for (std::int32_t i = 0; i < list->getNbObjects(); ++i)
        objects.push_back(list->getZelObject(i));
    return objects;
}

/// The instances of a piece, which stand on the layer with its name.
std::vector<IZelObjectInstance*> partsOf(IZelMgr& document, const std::string& piece)
{
    std::vector<IZelObjectInstance*> parts;
    for (IZelLayer* layer : allOf(document.getLayers()))
        for (IZelObjectInstance* instance : allOf(document.getObjectInstances()))
            if (nameOf(*layer) == piece && instance->getLayerId() == idOf(*layer))
                parts.push_back(instance);
    return parts;
}

/// The one material of the first component that a piece is put together from.
IZelProperty& materialOf(IZelMgr& document, const std::string& piece)
{
    const CZelUUID id =
        partsOf(document, piece).at(0)->asInternalComponentInstance()->getComponentUUID();
    for (IZelZelObjectDefinition* definition : allOf(document.getDefinitions()))
        if (idOf(*definition) == id)
            return *definition->getProperties()->getZelObject(0);
    throw std::runtime_error(piece + ": no component");
}

void tune(IZelMgr& document)
{
    for (const char* piece : {"Chair", "Bench"}) {
        partsOf(document, piece).at(0)->setInitialAngle(0.5);
        materialOf(document, piece).setDiffuseColor(CZelColor::rgb(1, 2, 3));
    }
    IZelObjectInstance& chair = *partsOf(document, "Chair").at(1);
    add(chair.getProperties(), "Cushion").setScale(2.0);
    document.getProperties()->getZelObject(0)->setDiffuseColor(CZelColor::rgb(4, 5, 6));
    document.getCameras()->getZelObject(0)->setPosition({5.0, 6.0, 7.0});
    addView(document.getCameras(), "Street");
    add(document.getLights(), "Porch").setPower(2500.0);
    document.getHeliodons()->getZelObject(0)->setNorthAngle(0.25);
}

/// The lines about these lists.
CLines linesOf(const CLines& lines, const std::regex& lists)
{
    CLines found;
    for (const auto& [line, count] : lines) {
        const std::size_t start = line.find(' ') + 1;
        if (std::regex_match(line.substr(start, line.find('[') - start), lists))
            found[line] = count;
    }
    return found;
}

void expectSame(CLines lines, CLines expected)
{
    for (const auto& [line, count] : expected)
        EXPECT_EQ(lines[line], count) << line;
    for (const auto& [line, count] : lines)
        EXPECT_EQ(count, expected[line]) << line;
}

class ToolReimport : public testing::Test {
protected:
    void SetUp() override
    {
        if (const std::string missing = missingModelPackages(); !missing.empty())
            GTEST_SKIP() << "These Debian packages are missing:" << missing;
        load(mTuned, "tuned", {chair(), wardrobe("Wardrobe"), kBench});
        load(mFresh, "fresh", {chair(), wardrobe("Closet"), kMan});
        tune(*mTuned.get());
    }

    void load(CClientDocument& document, const std::string& name,
              const std::vector<CFurniture>& pieces)
    {
        const std::string model = makeFurnishedModel(mFolder, name + ".assbin", pieces);
        const CRun run = runTool({"from-model", model, mFolder.file(name)});
        ASSERT_EQ(run.code, 0) << run.messages;
        ASSERT_TRUE(document.read(contents(mFolder.file(name))));
    }

    /// What the import changed.
    CLines import(std::vector<std::string> options = {})
    {
        const std::string tuned = mFolder.put("tuned", mTuned.save());
        const std::string fresh = mFolder.put("fresh", mFresh.save());
        const std::string out = mFolder.file("out");
        options.insert(options.begin(), {"import", "--reference", fresh, "--into", tuned});
        options.insert(options.end(), {"--output", out});
        options.push_back("--json");
        const CRun run = runTool(options);
        EXPECT_EQ(run.code, 0) << run.messages;
        mNbWithoutComponent = json::parse(run.output)["instancesWithoutComponent"];
        return differences(tuned, out);
    }

    static CLines differences(const std::string& a, const std::string& b)
    {
        CLines lines;
        const json told = json::parse(runTool({"diff", "--json", a, b}).output);
        for (const json& each : told["differences"])
            ++lines[lineOf(each)];
        return lines;
    }

    /// Identifiers say "ID", and that of a material's node is told of any component.
    static std::string lineOf(const json& difference)
    {
        std::string line = difference["kind"].get<std::string>() + " " +
                           difference["list"].get<std::string>() + "[" +
                           difference["name"].get<std::string>() + "]";
        if (const std::string path = difference["path"]; !path.empty())
            line += "/" + path + ": " + difference["a"].dump() + " -> " + difference["b"].dump();
        line = std::regex_replace(line, std::regex("[0-9A-F]{32}"), "ID");
        return std::regex_replace(line, std::regex(R"(\[mesh_[0-9]+\](.*/@(MappingNode.)?Id:))"),
                                  "[any]$1");
    }

    /// As an exporter does that draws new ones each time.
    void giveOtherIdentifiers()
    {
        int number = 0;
        for (IZelObjectInstance* instance : allOf(mFresh->getObjectInstances())) {
            const CZelUUID id = idOfNumber(++number);
            instance->getBasicData()->setId(&id);
        }
    }

    CTempFolder mFolder;
    CClientDocument mTuned;
    CClientDocument mFresh;
    std::size_t mNbWithoutComponent = 0; ///< as the last import told
};

// What stays: the material of the bench, which the second model lacks, that of the document, the
// light, the view of the street.
const CLines kLinesButInstances = {
    {"added layers[Closet]", 1},
    {"added layers[Visitor]", 1},
    {"changed cameras[Garden]/Position/@X: \"5.000000\" -> \"0.000000\"", 1},
    {"changed cameras[Garden]/Position/@Y: \"6.000000\" -> \"0.000000\"", 1},
    {"changed cameras[Garden]/Position/@Z: \"7.000000\" -> \"0.000000\"", 1},
    // In place of the wardrobe and the bench.
    {"changed cameras[Garden]/View.Info/Layers/Layer[#2]/@UUID: \"ID\" -> \"ID\"", 1},
    {"changed cameras[Garden]/View.Info/Layers/Layer[#3]/@UUID: \"ID\" -> \"ID\"", 1},
    {"changed definitions[mesh_200]/Object.Definition/Properties/Property/Node/Node/Diffuse/@R: "
     "\"1\" -> \"130\"",
     1},
    {"changed definitions[mesh_200]/Object.Definition/Properties/Property/Node/Node/Diffuse/@G: "
     "\"2\" -> \"130\"",
     1},
    {"changed definitions[mesh_200]/Object.Definition/Properties/Property/Node/Node/Diffuse/@B: "
     "\"3\" -> \"130\"",
     1},
    // Of the chair's three materials with maps: the node over the old one gets one of its own.
    {"changed definitions[any]/Object.Definition/Properties/Property/Node/@MappingNode.Id: "
     "\"ID\" -> \"ID\"",
     3},
    {"changed heliodons[Heliodon]/North.Angle: \"0.250000\" -> \"0.000000\"", 1},
};

TEST_F(ToolReimport, ObjectsWithNewIdentifiersComeBesideTheOldOnes)
{
    giveOtherIdentifiers();
    CLines expected = kLinesButInstances;
    for (IZelObjectInstance* instance : allOf(mFresh->getObjectInstances()))
        ++expected["added objectInstances[" + nameOf(*instance) + "]"];
    expectSame(import(), expected);
}

TEST_F(ToolReimport, WhatTheModelStillHasTakesThePlaceOfTheOldOnes)
{
    CLines all = kLinesButInstances;
    for (const char* piece : {"Closet", "Visitor"})
        for (IZelObjectInstance* instance : partsOf(*mFresh.get(), piece))
            ++all["added objectInstances[" + nameOf(*instance) + "]"];
    const std::string chair = "objectInstances[" + nameOf(*partsOf(*mFresh.get(), "Chair")[0]);
    all["changed " + chair + "]/Initial.Angle: \"0.500000\" -> \"0.000000\""] = 1;
    const std::string cushioned = "objectInstances[" + nameOf(*partsOf(*mFresh.get(), "Chair")[1]);
    all["removed " + cushioned + "]/Properties/Property: \"Cushion\" -> null"] = 1;
    expectSame(import(), all);
    // What is new in the model, and the wardrobe, whose meshes have no names but the node's.
    EXPECT_EQ(mNbWithoutComponent,
              partsOf(*mFresh.get(), "Closet").size() + partsOf(*mFresh.get(), "Visitor").size());

    const struct {
        const char* flags;
        std::regex lists;
    } cases[] = {
        {"001", std::regex("definitions")},
        {"020", std::regex("heliodons")},
        {"040", std::regex("layers|objectInstances")},
        {"080", std::regex("cameras")},
        {"F1E", std::regex("none that a model fills")},
    };
    for (const auto& [flags, lists] : cases)
        expectSame(import({"--flags", flags}), linesOf(all, lists));
}

} // namespace

#endif
