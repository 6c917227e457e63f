#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Tool : public testing::Test {
protected:
    static json info(const std::string& file)
    {
        const CRun run = runTool({"info", "--json", file});
        EXPECT_EQ(run.code, 0) << run.messages;
        return json::parse(run.output);
    }

    CTempFolder mFolder;
};

TEST_F(Tool, InfoGivesOneJsonObjectForEachFile)
{
    const struct {
        const char* file;
        const char* rest;
    } cases[] = {
        {"house.zel", R"json({"readability":3,"accepted":true,"version":"6.0.6",
            "label":"Vendralis (6.0)","origin":[120.5,-33.25,12.0],
            "uuid":"3BB4896313BC14D845B80F50298B68CB","preview":{"width":96,"height":64}})json"},
        {"legacy.zel", R"json({"readability":1,"accepted":true,"version":"2.0.1",
            "label":"Vendralis (5.0)","origin":[0.0,0.0,0.0],
            "uuid":"B58454B712D54DB32A10CB21FC61E139","preview":{"width":4,"height":3}})json"},
        {"minimal.zel", R"json({"readability":3,"accepted":true,"version":"6.0.6",
            "label":"Vendralis (6.0)","origin":[0.0,0.0,0.0],
            "uuid":"16375F971412CD13DBA7201877541092","preview":null})json"},
    };
    std::vector<std::string> arguments = {"info", "--json"};
    for (const auto& item : cases)
        arguments.push_back(sample(item.file));
    const CRun run = runTool(arguments);
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.messages, IsEmpty());

    std::istringstream lines(run.output);
    std::string line;
    for (const auto& item : cases) {
        json expected = json::parse(item.rest);
        expected["file"] = sample(item.file);
        ASSERT_TRUE(std::getline(lines, line));
        EXPECT_EQ(json::parse(line), expected);
    }
    EXPECT_FALSE(std::getline(lines, line));
}

TEST_F(Tool, InfoGivesOneTextLineForEachFile)
{
    const std::string house = sample("house.zel");
    const std::string legacy = sample("legacy.zel");
    EXPECT_EQ(runTool({"info", house, legacy}).output, house + "\t6.0.6\tVendralis (6.0)\tsame\n" +
                                                           legacy +
                                                           "\t2.0.1\tVendralis (5.0)\tolder\n");
}

TEST_F(Tool, InfoEndsWithTheWorstOutcome)
{
    const std::string house = sample("house.zel");
    const std::string text = mFolder.put("text.zel", "no document");
    const std::string missing = mFolder.file("missing.zel");

    const CRun unreadable = runTool({"info", text, house});
    EXPECT_EQ(unreadable.code, 65);
    EXPECT_EQ(unreadable.output,
              text + "\t0.0.0\t-\tno-document\n" + house + "\t6.0.6\tVendralis (6.0)\tsame\n");

    const CRun failed = runTool({"info", missing, text, house});
    EXPECT_EQ(failed.code, 74);
    EXPECT_EQ(failed.output, unreadable.output);
    EXPECT_THAT(failed.messages, HasSubstr(missing));
}

TEST_F(Tool, InfoTellsAVersionThatIsTooNew)
{
    const std::string file =
        mFolder.put("new.zel", "<?Zel library=\"7.1.2\" file=\"7.0\" min_version=\"7.0.0\" "
                               "safe_version=\"7.0.0\"?><Zel.File/>");
    const CRun run = runTool({"info", file});
    EXPECT_EQ(run.code, 65);
    EXPECT_EQ(run.output, file + "\t7.1.2\t-\ttoo-new\n");
}

TEST_F(Tool, LinesThatTheLibraryPrintsDoNotMixWithTheOutput)
{
    std::string text = contents(sample("minimal.zel"));
    text.replace(text.find("X=\"0.000000\""), 12, "X=\"nothing\"");
    const std::string file = mFolder.put("odd.zel", text);
    const CRun run = runTool({"info", file});
    EXPECT_EQ(run.output, file + "\t6.0.6\tVendralis (6.0)\tsame\n");
    EXPECT_EQ(run.messages, "CZelMgr::readOrigin - Exception Not a double value\n");
}

TEST_F(Tool, ExitCodesTellWhatWentWrong)
{
    const std::string house = sample("house.zel");
    const std::string minimal = sample("minimal.zel");
    const std::string text = mFolder.put("text.zel", "no document");
    const std::string model = mFolder.put("square.obj", "v 0 0 0\n");
    const std::string missing = mFolder.file("missing");
    const std::string out = mFolder.file("out");
    const std::string nowhere = mFolder.file("missing/out");
    const std::string folder = mFolder.file("");
    const struct {
        std::vector<std::string> arguments;
        int code;
    } cases[] = {
        {{}, 64},
        {{"nonsense"}, 64},
        {{"info"}, 64},
        {{"info", "--nonsense", house}, 64},
        {{"rewrite", house}, 64},
        {{"rewrite", house, out, out}, 64},
        {{"show"}, 64},
        {{"check"}, 64},
        {{"rewrite", "--min-version", "6.0", house, out}, 64},
        {{"rewrite", "--min-version", "6.0.0.0", house, out}, 64},
        {{"rewrite", "--min-version", "6.-0.0", house, out}, 64},
        {{"rewrite", "--min-version", "6.0.99999999999", house, out}, 64},
        {{"rewrite", "--min-version", "", house, out}, 64},
        {{"show", text}, 65},
        {{"check", text}, 65},
        {{"show", missing}, 74},
        {{"check", missing}, 74},
        {{"preview", house}, 64},
        {{"preview", "--size", "0", house, out}, 64},
        {{"preview", "--size", "65536", house, out}, 64},
        {{"from-model", model}, 64},
        {{"to-model", house}, 64},
        {{"info", text}, 65},
        {{"preview", minimal, out}, 65},
        {{"preview", text, out}, 65},
        {{"rewrite", text, out}, 65},
        {{"rewrite", "--bare", text, out}, 65},
        {{"to-model", text, out}, 65},
        {{"info", missing}, 74},
        {{"info", folder}, 74},
        {{"preview", missing, out}, 74},
        {{"rewrite", missing, out}, 74},
        {{"rewrite", folder, out}, 74},
        {{"rewrite", minimal, nowhere}, 74},
        {{"rewrite", minimal, folder}, 74},
        {{"rewrite", minimal, "/dev/null"}, 74},
        {{"to-model", missing, out}, 74},
        {{"to-model", minimal, nowhere}, 74},
    };
    for (const auto& item : cases) {
        const CRun run = runTool(item.arguments);
        EXPECT_EQ(run.code, item.code) << testing::PrintToString(item.arguments);
        EXPECT_THAT(run.messages, Not(IsEmpty())) << testing::PrintToString(item.arguments);
    }
    EXPECT_THAT(mFolder.names(), ElementsAre("square.obj", "text.zel"));
}

TEST_F(Tool, AWordThatIsNoCommandIsNamed)
{
    EXPECT_THAT(runTool({"nonsense", "info"}).messages, HasSubstr("not expected: nonsense"));
    EXPECT_THAT(runTool({}).messages, HasSubstr("A subcommand is required"));
    EXPECT_THAT(runTool({"info"}).messages, HasSubstr("FILE is required"));
}

TEST_F(Tool, HelpIsOutputAndHasAnExample)
{
    for (const std::string command :
         {"", "info", "show", "check", "preview", "rewrite", "from-model", "to-model", "shader"}) {
        std::vector<std::string> arguments = {"--help"};
        if (!command.empty())
            arguments.insert(arguments.begin(), command);
        const CRun run = runTool(arguments);
        EXPECT_EQ(run.code, 0) << command;
        EXPECT_THAT(run.output, HasSubstr("Example: zel " + command));
        EXPECT_THAT(run.messages, IsEmpty()) << command;
    }
}

TEST_F(Tool, RewriteKeepsThePreviewUnlessBare)
{
    const std::string house = sample("house.zel");
    const std::string kept = mFolder.file("kept.zel");
    const std::string bare = mFolder.file("bare.zel");
    const CRun run = runTool({"rewrite", house, kept});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(run.output, IsEmpty());
    ASSERT_EQ(runTool({"rewrite", "--bare", house, bare}).code, 0);

    EXPECT_EQ(info(bare)["preview"], nullptr);
    json before = info(house);
    json after = info(kept);
    before.erase("file");
    after.erase("file");
    EXPECT_EQ(after, before);
}

TEST_F(Tool, ASecondRewriteGivesTheSameBytes)
{
    // A bare load takes the preview of a file by a library before 5, but not that of its own save.
    const struct {
        const char* name;
        std::vector<std::string> command;
    } cases[] = {
        {"house.zel", {"rewrite", "--bare"}},
        {"house.zel", {"rewrite"}},
        {"minimal.zel", {"rewrite", "--bare"}},
        {"minimal.zel", {"rewrite"}},
        {"legacy.zel", {"rewrite"}},
    };
    for (const auto& item : cases) {
        const std::string once = mFolder.file("once.zel");
        const std::string twice = mFolder.file("twice.zel");
        std::vector<std::string> first = item.command;
        first.insert(first.end(), {sample(item.name), once});
        std::vector<std::string> second = item.command;
        second.insert(second.end(), {once, twice});
        ASSERT_EQ(runTool(first).code, 0) << item.name;
        ASSERT_EQ(runTool(second).code, 0) << item.name;
        EXPECT_EQ(contents(once), contents(twice)) << item.name;
    }
}

TEST_F(Tool, InMayBeOut)
{
    const std::string other = mFolder.file("other.zel");
    const std::string same = mFolder.put("same.zel", contents(sample("house.zel")));
    ASSERT_EQ(runTool({"rewrite", same, other}).code, 0);
    ASSERT_EQ(runTool({"rewrite", same, same}).code, 0);
    EXPECT_EQ(contents(same), contents(other));
    EXPECT_THAT(contents(same), Not(IsEmpty()));
}

TEST_F(Tool, AFailureLeavesOutAsItWas)
{
    const std::string out = mFolder.put("out.zel", "as it was");
    const std::string text = mFolder.put("text.zel", "no document");
    std::string cut = contents(sample("house.zel"));
    cut.resize(cut.size() / 2);
    const std::string half = mFolder.put("half.zel", cut);
    for (const std::string& file : {text, half}) {
        EXPECT_EQ(runTool({"rewrite", file, out}).code, 65) << file;
        EXPECT_EQ(contents(out), "as it was") << file;
    }
    EXPECT_THAT(mFolder.names(), ElementsAre("half.zel", "out.zel", "text.zel"));
}

TEST_F(Tool, RewriteNamesWhatItDrops)
{
    const std::string out = mFolder.file("out.zel");
    const std::string legacy = sample("legacy.zel");
    const CRun early = runTool({"rewrite", legacy, out});
    ASSERT_EQ(early.code, 0) << early.messages;
    for (const char* name : {"Ambient", "Atmosphere", "Background", "Panoramas", "Current.Id"})
        EXPECT_THAT(early.messages, HasSubstr("the section \"" + std::string(name) + "\" isn't"));
    EXPECT_THAT(early.messages, Not(HasSubstr("Application.Data")));

    const std::string data = "<Application.Data><Mine a=\"1\"/></Application.Data>";
    const CRun withData = runTool({"rewrite", mFolder.put("data.zel", minimalWith(data)), out});
    ASSERT_EQ(withData.code, 0) << withData.messages;
    EXPECT_THAT(withData.messages, HasSubstr("the section \"Application.Data\" isn't saved"));
    EXPECT_THAT(contents(out), Not(HasSubstr("Application.Data")));

    EXPECT_THAT(runTool({"rewrite", sample("minimal.zel"), out}).messages, IsEmpty());
}

TEST_F(Tool, RewriteClaimsTheVersionThatItIsGiven)
{
    const std::string out = mFolder.file("out.zel");
    for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--bare"}}) {
        std::vector<std::string> arguments = {"rewrite", "--min-version", "5.12.3",
                                              sample("house.zel"), out};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const CRun run = runTool(arguments);
        ASSERT_EQ(run.code, 0) << run.messages;
        EXPECT_THAT(contents(out), HasSubstr("<?Zel library=\"6.0.6\" file=\"6.0\" "
                                             "min_version=\"5.12.3\" safe_version=\"5.12.3\"?>"));
    }
    ASSERT_EQ(runTool({"rewrite", sample("house.zel"), out}).code, 0);
    EXPECT_THAT(contents(out), HasSubstr("min_version=\"6.0.0\" safe_version=\"6.0.4\"?>"));
}

// The small document as a library of the given versions would have written it.
std::string byLibrary(const std::string& versions)
{
    std::string text = contents(sample("minimal.zel"));
    const std::size_t begin = text.find("library=");
    text.replace(begin, text.find("?>", begin) - begin, versions);
    const std::string unnamed = "<?Application name=\"\"";
    return text.replace(text.find(unnamed), unnamed.size(), "<?Application name=\"Vendralis\"");
}

TEST_F(Tool, RewriteRefusesANewerFileUnlessForced)
{
    const struct {
        const char* versions;
        int readability;
        int code;
    } cases[] = {
        {R"(library="6.0.6" file="6.0" min_version="6.0.0" safe_version="6.0.4")", 3, 0},
        {R"(library="7.0.0" file="6.0" min_version="6.0.0" safe_version="6.0.0")", 4, 65},
        {R"(library="7.0.0" file="6.0" min_version="6.0.0" safe_version="7.0.0")", 5, 65},
        {R"(library="7.0.0" file="6.0" min_version="7.0.0" safe_version="7.0.0")", 6, 65},
    };
    const std::string out = mFolder.file("out.zel");
    for (const auto& item : cases) {
        const std::string file = mFolder.put("in.zel", byLibrary(item.versions));
        mFolder.put("out.zel", "as it was");
        const CRun probed = runTool({"info", "--json", file});
        ASSERT_EQ(json::parse(probed.output)["readability"], item.readability) << item.versions;

        const CRun run = runTool({"rewrite", file, out});
        EXPECT_EQ(run.code, item.code) << item.versions;
        EXPECT_EQ(contents(out) == "as it was", item.code != 0) << item.versions;
        EXPECT_EQ(run.messages, item.code == 0 ? ""
                                               : "zel: " + file +
                                                     ": written by a newer library, so a save may "
                                                     "lose data (--force saves)\n");
        const CRun forced = runTool({"rewrite", "--force", file, out});
        EXPECT_EQ(forced.code, 0) << item.versions << forced.messages;
        EXPECT_THAT(contents(out), HasSubstr("<?Zel library=\"6.0.6\"")) << item.versions;
        EXPECT_EQ(runTool({"rewrite", "--bare", file, out}).code, 0) << item.versions;
    }
}

TEST_F(Tool, RewriteRefusesALoadThatLostABlockUnlessForced)
{
    const std::string out = mFolder.put("out.zel", "as it was");
    const std::string file =
        mFolder.put("in.zel", minimalWith("<Points><![CDATA[\n2 \n0.0 0.0 0.0 \nx\n]]></Points>"));
    const CRun run = runTool({"rewrite", file, out});
    EXPECT_EQ(run.code, 65);
    EXPECT_THAT(run.messages, HasSubstr(" while parsing 'Points' data block\n"));
    EXPECT_THAT(run.messages, HasSubstr("sections that can't be read: 1, so a save may lose data"));
    EXPECT_EQ(contents(out), "as it was");
    EXPECT_THAT(mFolder.names(), ElementsAre("in.zel", "out.zel"));

    const CRun forced = runTool({"rewrite", "--force", file, out});
    EXPECT_EQ(forced.code, 0);
    EXPECT_THAT(forced.messages, HasSubstr("sections that can't be read: 1; saved all the same"));
    EXPECT_THAT(contents(out), HasSubstr("<Zel.File>"));
    EXPECT_EQ(runTool({"rewrite", "--bare", file, out}).code, 0);
}

TEST_F(Tool, AnUnknownSectionIsToldAndKept)
{
    const std::string out = mFolder.file("out.zel");
    const std::string section = "<Foreign><![CDATA[ a <b> ]]></Foreign>";
    const CRun run = runTool({"rewrite", mFolder.put("foreign.zel", minimalWith(section)), out});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_EQ(run.messages, "Error \"CData block unknown\" while parsing 'Foreign' data block\n");
    EXPECT_THAT(contents(out), HasSubstr(section));
}

TEST_F(Tool, TheMeshOfTheDocumentFollowsThoseOfItsComponents)
{
    std::string text = contents(sample("legacy.zel"));
    text.insert(text.rfind("</Zel.File>"),
                "<Points><![CDATA[\n3 \n9.0 0.0 0.0 \n9.0 1.0 0.0 \n9.0 0.0 1.0 \n]]></Points>"
                "<Polygons><![CDATA[\n1 \np\t6 3 2 1 0 \n]]></Polygons>");
    const std::string out = mFolder.file("out.obj");
    const CRun run = runTool({"to-model", mFolder.put("in.zel", text), out});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(contents(out), testing::StartsWith("mtllib out.mtl\no Shed\nv 10 20 250\n"));
    EXPECT_THAT(contents(out), testing::EndsWith("\nv 9 0 0\nv 9 1 0\nv 9 0 1\n"
                                                 "usemtl material_6\nf 19 18 17\n"));
}

TEST_F(Tool, PolygonsWithoutPointsOfTheirOwnAreLeftOut)
{
    std::string text = contents(sample("legacy.zel"));
    text.insert(text.rfind("</Zel.File>"),
                "<Polygons><![CDATA[\n1 \np\t6 3 2 1 0 \n]]></Polygons>");
    const std::string out = mFolder.file("out.obj");
    const CRun run = runTool({"to-model", mFolder.put("in.zel", text), out});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_THAT(run.messages, HasSubstr("loops that can't be faces, left out: 1\n"));
}

TEST_F(Tool, NamesNeedNotBeAscii)
{
    const std::string in =
        mFolder.put("d\u00e9j\u00e0 vu \u5bb6.zel", contents(sample("house.zel")));
    const std::string out = mFolder.file("\u51fa.zel");
    ASSERT_EQ(runTool({"rewrite", in, out}).code, 0);
    EXPECT_EQ(info(out)["file"], out);
}

TEST_F(Tool, MeshesBecomeAnObjFile)
{
    const std::string meshText =
        "<Points><![CDATA[\n4 \n0.0 0.0 0.0 \n4.0 0.0 0.0 \n4.0 -0.5 -0.0 \n1.606421 1.0 0.125 "
        "\n]]>"
        "</Points><Polygons><![CDATA[\n5 \np\t0 3 0 1 2 \np\t3 3 M 0.5 0.25 0 1 2 \n"
        "h\t3 2 3 0 1 2 3 1 2 3 \np\t3 2 0 1 \np\t3 3 0 1 4 \n]]></Polygons>";
    // The component of the sample gets this mesh in place of its own.
    std::string text = contents(sample("legacy.zel"));
    const std::size_t begin = text.find("<Points>");
    const std::size_t end = text.find("</Polygons>") + std::string("</Polygons>").size();
    text.replace(begin, end - begin, meshText);
    const std::string file = mFolder.put("mesh.zel", text);
    const std::string out = mFolder.file("mesh.obj");
    const CRun run = runTool({"to-model", file, out});
    ASSERT_EQ(run.code, 0) << run.messages;
    EXPECT_EQ(contents(out), "mtllib mesh.mtl\no Shed\n" // placed at 10, 20, 0
                             "v 10 20 0\nv 14 20 0\nv 14 19.5 0\nv 11.606421 21 0.125\n"
                             "usemtl Brick\nf 1 2 3\n"
                             "usemtl material_3\nvt 0.5 0.25\nvt 0 0\nvt 0 0\nf 1/1 2/2 3/3\n"
                             "# a polygon with holes: its outer loop and 1 inner\n"
                             "f 1 2 3\nf 2 3 4\n");
    EXPECT_THAT(run.messages,
                HasSubstr("polygons with holes, whose loops became faces of their own: 1\n"));
    EXPECT_THAT(run.messages, HasSubstr("loops that can't be faces, left out: 2\n"));
}

} // namespace

#endif
