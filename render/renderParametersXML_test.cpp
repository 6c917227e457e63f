#include "render/renderParametersXML.h"

#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <gtest/gtest.h>

namespace {

using OvZel::CZelRenderParameters;
using OvZel::CZelXMLAdd;
using OvZel::CZelXMLGet;
using ZelTest::CTestElement;
using ZelTest::messageOf;

std::string written(const CZelRenderParameters& parameters)
{
    CTestElement tree;
    addRenderParameters(parameters, CZelXMLAdd(tree.element()));
    return tree.text();
}

/// One entry of the file form. The flag has no element when it is false.
std::string entryText(int number, const char* value, const char* minimum, const char* maximum,
                      bool flag, const std::string& text, const std::string& color)
{
    const std::string n = std::to_string(number);
    return "<Double" + n + ">" + value + "</Double" + n + "><Double" + n + ".Min>" + minimum +
           "</Double" + n + ".Min><Double" + n + ".Max>" + maximum + "</Double" + n + ".Max>" +
           (flag ? "<BOOL" + n + "/>" : "") + "<STR" + n + " en=\"" + text + "\"/><COLOR" + n +
           " " + color + "/>";
}

std::string defaultEntry(int number)
{
    return entryText(number, "0.000000", "0.000000", "100.000000", false, "",
                     "R=\"0\" G=\"0\" B=\"0\"");
}

CZelRenderParameters read(const std::string& inside, CZelRenderParameters start = {})
{
    const CTestElement tree("<E>" + inside + "</E>");
    getRenderParameters(start, CZelXMLGet(tree.element()));
    return start;
}

TEST(RenderParametersXml, ANewRecordWritesItsDefaults)
{
    std::string expected = "<E><Config.Name>Unknown_Config</Config.Name>";
    for (int i = 1; i <= 12; ++i)
        expected += defaultEntry(i);
    EXPECT_EQ(written({}), expected + "</E>");
}

TEST(RenderParametersXml, AFullFileComesBack)
{
    std::string full = "<Config.Name>Mine</Config.Name>";
    for (int i = 1; i <= 12; ++i) {
        const std::string n = std::to_string(i);
        full += entryText(i, (n + ".500000").c_str(), ("-" + n + ".250000").c_str(),
                          (n + "00.000000").c_str(), i % 2 == 1, "text " + n,
                          "R=\"" + n + "\" G=\"1" + n + "\" B=\"20" + std::to_string(i % 6) + "\"");
    }
    const CZelRenderParameters found = read(full);
    EXPECT_EQ(found.configName, "Mine");
    EXPECT_EQ(found.entries[2].value, 3.5);
    EXPECT_EQ(found.entries[2].minimum, -3.25);
    EXPECT_EQ(found.entries[2].maximum, 300.0);
    EXPECT_TRUE(found.entries[2].flag);
    EXPECT_FALSE(found.entries[3].flag);
    EXPECT_EQ(found.entries[11].text, "text 12");
    const std::uint8_t color[] = {0, 3, 13, 203};
    EXPECT_TRUE(std::equal(color, color + 4, found.entries[2].color));
    EXPECT_EQ(written(found), "<E>" + full + "</E>");
}

TEST(RenderParametersXml, WhatIsMissingStaysButForTheFlag)
{
    CZelRenderParameters start;
    start.configName = "Before";
    start.entries[0] = {1.0, 2.0, 3.0, true, "text", {0, 4, 5, 6}};
    start.entries[11].flag = true;
    const CZelRenderParameters found = read("<BOOL12>0</BOOL12><BOOL13/><Other/>", start);
    EXPECT_EQ(found.configName, "Before");
    EXPECT_EQ(found.entries[0].value, 1.0);
    EXPECT_EQ(found.entries[0].minimum, 2.0);
    EXPECT_EQ(found.entries[0].maximum, 3.0);
    EXPECT_EQ(found.entries[0].text, "text");
    EXPECT_EQ(found.entries[0].color[3], 6);
    EXPECT_FALSE(found.entries[0].flag);
    EXPECT_TRUE(found.entries[11].flag); // its presence counts, not its text
}

TEST(RenderParametersXml, TheNameIsATextOrAnAttribute)
{
    const struct {
        const char *text, *name;
    } cases[] = {
        {"<Config.Name>Mine</Config.Name>", "Mine"},
        {"<Config.Name en=\"Mine\"/>", "Mine"},
        {"<Config.Name en=\"Other\">Mine</Config.Name>", "Mine"},
        {"<Config.Name/>", ""},
        {"<Config.Name de=\"Meins\"/>", ""},
        {"", "Unknown_Config"},
    };
    for (const auto& item : cases)
        EXPECT_EQ(read(item.text).configName, item.name) << item.text;
    CZelRenderParameters empty;
    empty.configName.clear();
    EXPECT_EQ(written(empty).substr(0, 17), "<E><Config.Name/>");
}

TEST(RenderParametersXml, WhatCannotBeReadEndsTheReadWhereItStands)
{
    const struct {
        const char *text, *message;
    } cases[] = {
        {"<Double1>1</Double1><Double2/><Double3>3</Double3>", "CZelXMLGet::GetDouble - NULL ptr"},
        {"<Double1>1</Double1><STR2 de=\"a\"/><Double3>3</Double3>",
         "CZelXMLGet::GetAttributeLanguage - NULL ptr"},
        {"<Double1>1</Double1><COLOR2 R=\"1\" G=\"2\"/><Double3>3</Double3>",
         "CZelXMLGet::GetFmtAttribute - NULL ptr for tag B"},
    };
    for (const auto& item : cases) {
        const CTestElement tree("<E>" + std::string(item.text) + "</E>");
        CZelRenderParameters found;
        EXPECT_EQ(messageOf([&] { getRenderParameters(found, CZelXMLGet(tree.element())); }),
                  item.message);
        EXPECT_EQ(found.entries[0].value, 1.0);
        EXPECT_EQ(found.entries[2].value, 0.0);
    }
}

TEST(RenderParametersXml, TextsAreEscapedAndOfAnyLength)
{
    CZelRenderParameters given;
    given.configName = "a<b>&\"" + std::string(5000, 'x');
    given.entries[0].text = "line\nline\t\"" + std::string(5000, 'y');
    CTestElement tree;
    addRenderParameters(given, CZelXMLAdd(tree.element()));
    const CTestElement again(tree.text());
    CZelRenderParameters found;
    getRenderParameters(found, CZelXMLGet(again.element()));
    EXPECT_EQ(found.configName, given.configName);
    EXPECT_EQ(found.entries[0].text, given.entries[0].text);
}

} // namespace
