#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNull = "00000000000000000000000000000000";
constexpr const char* kId = "BE47E8B0CAAACD0F6FBF214CEB78CD7F";

// No three of them in a line.
std::string points(int count)
{
    std::string text = "<Points><![CDATA[\n" + std::to_string(count) + " \n";
    for (int i = 0; i < count; ++i)
        text += std::to_string(i) + ".0 " + std::to_string(i * i) + ".0 0.0 \n";
    return text + "]]></Points>";
}

std::string polygons(const std::string& lines)
{
    const auto count = std::count(lines.begin(), lines.end(), '\n');
    return "<Polygons><![CDATA[\n" + std::to_string(count) + " \n" + lines + "]]></Polygons>";
}

// The small sample of an early version has one component; this one has it twice.
std::string twice()
{
    std::string text = contents(sample("legacy.zel"));
    const std::string endTag = "</InternalComponentDefinition>";
    const std::size_t begin = text.find("<InternalComponentDefinition ");
    const std::size_t end = text.find(endTag) + endTag.size();
    return text.insert(end, text.substr(begin, end - begin));
}

std::string image(const std::string& id)
{
    return "<Image UUID=\"" + id +
           "\"><![CDATA[00000001000000010000000100000001FF010203]]></Image>";
}

class ToolCheck : public testing::Test {
protected:
    static std::vector<json> findings(const std::string& file)
    {
        std::istringstream lines(runTool({"check", "--json", file}).output);
        std::vector<json> found;
        for (std::string line; std::getline(lines, line);)
            found.push_back(json::parse(line));
        return found;
    }

    CTempFolder mFolder;
};

TEST_F(ToolCheck, ACleanFileHasNoFindings)
{
    const CRun run = runTool({"check", sample("minimal.zel"), sample("house.zel")});
    EXPECT_EQ(run.code, 0) << run.output;
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(ToolCheck, EachFindingHasItsCode)
{
    const struct {
        std::string text;
        std::vector<std::pair<const char*, const char*>> expected; // code, part of the text
    } cases[] = {
        {minimalWith("<Points><![CDATA[\nx\n]]></Points>"),
         {{"E001", " while parsing 'Points' data block"}}},
        {minimalWith(points(3) + polygons("p\t0 3 0 1 2 \np\t0 4 0 1 3 -1 \nh\t0 2 3 0 1 2 3 0 1 "
                                          "7 \n")),
         {{"W101", "the document's mesh: corners at points that the mesh does not have: 3, the "
                   "first in polygon 1"},
          {"W110", "the document's mesh: polygons of materials beyond the 0 of the owner: 3"}}},
        {minimalWith(points(3) + polygons("p\t0 3 0 1 2 \np\t0 2 0 1 \np\t0 0 \n")),
         {{"W106", "loops with fewer than three corners: 2, the first in polygon 1"},
          {"W110", "beyond the 0 of the owner: 3, the first in polygon 0"}}},
        {minimalWith("<Foreign><![CDATA[ a ]]></Foreign>"), {{"W107", "'Foreign' data block"}}},
        {minimalWith("<Application.Data><Mine/></Application.Data>"),
         {{"W105", "Application.Data"}}},
        {minimalWith("<Ambient/><Current.Id/>"), {{"W104", "Ambient"}, {"W104", "Current.Id"}}},
        {minimalWith("<Images>" + image(kNull) + "</Images>"),
         {{"W103", "image 0 has a null identifier"}}},
    };
    for (const auto& item : cases) {
        const std::string file = mFolder.put("in.zel", item.text);
        EXPECT_EQ(runTool({"check", file}).code, 1) << item.expected[0].second;
        const std::vector<json> found = findings(file);
        ASSERT_EQ(found.size(), item.expected.size()) << json(found);
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_EQ(found[i]["file"], file);
            EXPECT_EQ(found[i]["code"], item.expected[i].first);
            EXPECT_THAT(found[i]["text"].get<std::string>(), HasSubstr(item.expected[i].second));
        }
    }
}

TEST_F(ToolCheck, TwoDefinitionsOfOneIdentifierAreFound)
{
    const std::vector<json> found = findings(mFolder.put("in.zel", twice()));
    std::size_t nbFound = 0;
    for (const json& each : found)
        if (each["code"] == "W102") {
            ++nbFound;
            EXPECT_THAT(each["text"].get<std::string>(), HasSubstr(kId));
        }
    EXPECT_EQ(nbFound, 1U) << json(found);
    for (const json& each : findings(sample("legacy.zel")))
        EXPECT_NE(each["code"], "W102") << each;
}

TEST_F(ToolCheck, EachLineHoldsFileCodeAndText)
{
    const std::string file =
        mFolder.put("in.zel", minimalWith("<Application.Data><Mine/></Application.Data>"));
    const CRun run = runTool({"check", file});
    EXPECT_EQ(run.output, file + "\tW105\ta save drops the section \"Application.Data\"\n");
    EXPECT_THAT(run.messages, IsEmpty());
}

TEST_F(ToolCheck, TheWorstFileDecidesTheExitCode)
{
    const std::string odd = mFolder.put("odd.zel", minimalWith("<Ambient/>"));
    const std::string text = mFolder.put("text.zel", "no document");
    const std::string clean = sample("minimal.zel");
    EXPECT_EQ(runTool({"check", odd, clean}).code, 1);
    const CRun run = runTool({"check", text, odd, clean});
    EXPECT_EQ(run.code, 65);
    EXPECT_THAT(run.output, HasSubstr(odd + "\tW104\t"));
    EXPECT_THAT(run.messages, HasSubstr(text + ": not readable"));
    EXPECT_EQ(runTool({"check", mFolder.file("missing"), text}).code, 74);
}

TEST_F(ToolCheck, ShowOutlinesADocument)
{
    const std::string legacy = sample("legacy.zel");
    const CRun asJson = runTool({"show", "--json", legacy});
    ASSERT_EQ(asJson.code, 0) << asJson.messages;
    const json shown = json::parse(asJson.output);
    EXPECT_EQ(shown["file"], legacy);
    EXPECT_EQ(shown["uuid"], "B58454B712D54DB32A10CB21FC61E139");
    EXPECT_EQ(shown["application"], "Vendralis");
    EXPECT_EQ(shown["counts"]["definitions"], 1);
    EXPECT_EQ(shown["counts"]["points"], 0);
    EXPECT_EQ(shown["counts"]["cameras"], 1);
    EXPECT_EQ(shown["counts"].size(), 22U);
    ASSERT_EQ(shown["definitions"].size(), 1U);
    EXPECT_EQ(shown["definitions"][0]["uuid"], kId);
    EXPECT_EQ(shown["definitions"][0]["level"], 0);
    EXPECT_EQ(shown["definitions"][0]["points"], 16);
    EXPECT_EQ(shown["definitions"][0]["polygons"], 7);

    const CRun text = runTool({"show", legacy});
    ASSERT_EQ(text.code, 0);
    EXPECT_THAT(text.output, testing::StartsWith(legacy + "\n"));
    EXPECT_THAT(text.output, HasSubstr("\n  definitions: 1\n    " + std::string(kId) +
                                       " name=Old shed class=ModelObject level=0 points=16 "
                                       "polygons=7 properties="));
}

TEST_F(ToolCheck, ShowNamesTheImages)
{
    const std::string file =
        mFolder.put("in.zel", minimalWith("<Images>" + image(kId) + "</Images>"));
    const json shown = json::parse(runTool({"show", "--json", file}).output);
    EXPECT_EQ(shown["images"],
              json::parse(R"([{"uuid":"BE47E8B0CAAACD0F6FBF214CEB78CD7F","width":1,"height":1}])"));
    EXPECT_EQ(shown["counts"]["images"], 1);
}

} // namespace

#endif
