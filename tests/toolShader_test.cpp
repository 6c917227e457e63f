#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/support/CClientDocument.h"
#include "tests/support/soundScene.h"
#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace OvZel;
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;
using ZelTest::addMaterial;

class ToolShader : public testing::Test {
protected:
    std::string put(const std::string& name)
    {
        EXPECT_TRUE(mDocument.write());
        return mFolder.put(name, mDocument.written);
    }
    static json materials(const std::string& file)
    {
        return json::parse(runTool({"show", "--json", file}).output)["properties"];
    }
    static CRun run(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), "shader");
        return runTool(std::move(arguments));
    }
    static void expectDone(const CRun& run)
    {
        EXPECT_EQ(run.code, 0) << run.messages;
        EXPECT_THAT(run.output, IsEmpty());
        EXPECT_THAT(run.messages, IsEmpty());
    }

    ZelTest::CClientDocument mDocument;
    ZelTest::CSoundScene mScene{*mDocument.get()};
    CTempFolder mFolder;
    std::string mShader = mFolder.file("oak.xml");
    std::string mOut = mFolder.file("out.zel");
};

TEST_F(ToolShader, AMaterialMovesToAnotherDocument)
{
    mScene.material.setSmooth(0.5);
    mScene.material.setDiffuseMapUrl("a & \"b\" <\xC3\xA9>.jpg");
    const std::string in = put("in.zel");
    expectDone(run({"export", in, "Oak", mShader}));
    const std::string other = mFolder.put("other.zel", contents(sample("minimal.zel")));
    expectDone(run({"import", other, "Oak", mShader, mOut}));

    json before = materials(in)[0];
    json after = materials(mOut);
    ASSERT_EQ(after.size(), 1u);
    EXPECT_NE(after[0]["uuid"], before["uuid"]);
    before.erase("uuid");
    after[0].erase("uuid");
    EXPECT_EQ(after[0], before);
    EXPECT_EQ(after[0]["nodes"][0]["maps"]["diffuse"], "a & \"b\" <\xC3\xA9>.jpg");

    ZelTest::CClientDocument moved;
    ASSERT_TRUE(moved.read(contents(mOut)));
    EXPECT_EQ(moved->getProperties()->getZelObject(0)->getSmooth(), 0.5);
}

TEST_F(ToolShader, TheDataOfAClientGoAlong)
{
    IZelTCE& tree = *mScene.material.getTCE();
    ITCENode* custom = tree.createNode(eCustomNode);
    OrvaneXML::XIXMLElement* data = custom->asCustomNode()->getData();
    OrvaneXML::XIXMLElement* inner = data->AddElement(data->MakeKey("Inner"));
    inner->AddAttribute(data->MakeKey("a"), "1 < 2 & \"3\"");
    inner->AddElement(data->MakeKey("Empty"));
    inner->AddText("x < y");
    data->AddElement(data->MakeKey("Behind"))->AddText("]]>");
    tree.getRootNode()->setChild(0, custom);
    custom->Release();

    expectDone(run({"export", put("in.zel"), "Oak", mShader}));
    EXPECT_THAT(contents(mShader), HasSubstr("<Inner a=\"1 &#60; 2 &#38; &#34;3&#34;\"><Empty/>x "
                                             "&#60; y</Inner><Behind>]]&#62;</Behind>"));
    expectDone(run({"import", sample("minimal.zel"), "New", mShader, mOut}));
    ZelTest::CClientDocument moved;
    ASSERT_TRUE(moved.read(contents(mOut)));
    ITCENode* node = moved->getProperties()->getZelObject(0)->getTCE()->getRootNode()->getChild(0);
    OrvaneXML::XIXMLElement* movedData = node->asCustomNode()->getData();
    OrvaneXML::XIXMLElement* movedInner = movedData->FindElement(movedData->MakeKey("Inner"));
    ASSERT_NE(movedInner, nullptr);
    EXPECT_STREQ(movedInner->GetFirstAttribute()->GetValue(), "1 < 2 & \"3\"");
    EXPECT_STREQ(movedInner->GetNode()->GetText(), "x < y");
    EXPECT_STREQ(movedInner->GetNextElement()->GetNode()->GetText(), "]]>");
}

TEST_F(ToolShader, TheLibraryReadsWhatIsExported)
{
    expectDone(run({"export", put("in.zel"), "Oak", mShader}));
    ZelTest::CClientDocument other;
    IZelProperty* property = other->getProperties()->newZelObject(-1);
    ZelTest::CMemoryReadStream stream(contents(mShader));
    EXPECT_TRUE(other.more().readShader(property, &stream));
    EXPECT_THAT(other.takeMessages(), IsEmpty());
    EXPECT_STREQ(property->getBasicData()->getName(), "Oak");
    EXPECT_STREQ(property->getDiffuseMapUrl(), "oak.jpg");
    EXPECT_EQ(*property->getBasicData()->getId(), *mScene.material.getBasicData()->getId());
}

TEST_F(ToolShader, AnImportKeepsNameIdentifiersAndPlace)
{
    IZelProperty& ash = addMaterial(*mDocument->getProperties(), "Ash");
    ash.setDiffuseColor(CZelColor::rgb(9, 9, 9));
    ash.setOverloadId(CZelUUID("00112233445566778899AABBCCDDEEFF"));
    addMaterial(*mDocument->getProperties(), "Elm");
    const std::string in = put("in.zel");
    expectDone(run({"export", in, "Oak", mShader}));
    expectDone(run({"import", in, "Ash", mShader, mOut}));

    const json before = materials(in);
    const json after = materials(mOut);
    ASSERT_EQ(after.size(), 3u);
    EXPECT_EQ(after[0], before[0]);
    EXPECT_EQ(after[2], before[2]);
    EXPECT_EQ(after[1]["name"], "Ash");
    EXPECT_EQ(after[1]["uuid"], before[1]["uuid"]);
    EXPECT_EQ(after[1]["nodes"], before[0]["nodes"]);
    ZelTest::CClientDocument moved;
    ASSERT_TRUE(moved.read(contents(mOut)));
    EXPECT_EQ(moved->getProperties()->getZelObject(1)->getOverloadId(), ash.getOverloadId());
}

TEST_F(ToolShader, TheFormWithOneNodeIsImportedToo)
{
    ZelTest::CMemoryWriteStream stream;
    ASSERT_TRUE(mDocument.more().writeShader(&mScene.material, &stream));
    std::string text = stream.text;
    for (const char* tag : {"<Zel.Shader", "</Zel.Shader"}) {
        const std::string name = "Zel.Shader";
        const std::size_t place = text.find(tag) + std::string(tag).size() - name.size();
        text.replace(place, name.size(), "Orvane.Shader");
    }
    const std::string shader = mFolder.put("node.xml", text);
    expectDone(run({"import", sample("minimal.zel"), "New", shader, mOut}));
    const json after = materials(mOut);
    ASSERT_EQ(after.size(), 1u);
    EXPECT_EQ(after[0]["name"], "New");
    EXPECT_EQ(after[0]["nodes"][0]["maps"]["diffuse"], "oak.jpg");
}

TEST_F(ToolShader, OfSeveralOfOneNameOnlyTheNumberWillDo)
{
    addMaterial(*mDocument->getProperties(), "Oak").setDiffuseColor(CZelColor::rgb(1, 2, 3));
    addMaterial(*mDocument->getProperties(), "#0").setDiffuseColor(CZelColor::rgb(7, 7, 7));
    const std::string in = put("in.zel");
    const CRun refused = run({"export", in, "Oak", mShader});
    EXPECT_EQ(refused.code, 65);
    EXPECT_THAT(refused.messages, HasSubstr("2 materials have the name \"Oak\""));
    EXPECT_EQ(run({"import", in, "Oak", in, mOut}).code, 65);

    expectDone(run({"export", in, "#1", mShader}));
    EXPECT_THAT(contents(mShader), HasSubstr("<Diffuse R=\"1\" G=\"2\" B=\"3\"/>"));
    expectDone(run({"export", in, "#0", mShader})); // a name before it is a number
    EXPECT_THAT(contents(mShader), HasSubstr("<Diffuse R=\"7\" G=\"7\" B=\"7\"/>"));
}

TEST_F(ToolShader, WhatCannotBeDoneLeavesOutAsItWas)
{
    const std::string in = put("in.zel");
    const std::string text = mFolder.put("text.xml", "no shader");
    const std::string other = mFolder.put("other.xml", "<Zel.Shader/>");
    const std::string missing = mFolder.file("missing");
    const std::string newer =
        mFolder.put("newer.zel", "<?Zel library=\"6.5.0\" file=\"6.0\" min_version=\"6.0.0\" "
                                 "safe_version=\"6.0.0\"?><Zel.File><Working.Window/></Zel.File>");
    ASSERT_EQ(run({"export", in, "Oak", mShader}).code, 0);
    const std::string out = mFolder.put("out", "as it was");
    const struct {
        std::vector<std::string> arguments;
        int code;
        const char* message;
    } cases[] = {
        {{}, 64, "subcommand is required"},
        {{"nonsense"}, 64, "nonsense"},
        {{"export", in, "Oak"}, 64, "OUT is required"},
        {{"import", in, "Oak", mShader}, 64, "OUT is required"},
        {{"export", in, "Ash", out}, 65, "no material \"Ash\""},
        {{"export", in, "#1", out}, 65, "no material \"#1\""},
        {{"import", in, "#1", mShader, out}, 65, "no material \"#1\""},
        {{"export", text, "Oak", out}, 65, "not readable"},
        {{"import", text, "Oak", mShader, out}, 65, "not readable"},
        {{"import", in, "Oak", text, out}, 65, "not readable as a shader"},
        {{"import", in, "Oak", other, out}, 65, "Missing property data"},
        {{"import", newer, "Oak", mShader, out}, 65, "newer library"},
        {{"export", missing, "Oak", out}, 74, "missing"},
        {{"import", missing, "Oak", mShader, out}, 74, "missing"},
        {{"import", in, "Oak", missing, out}, 74, "missing"},
    };
    for (const auto& [arguments, code, message] : cases) {
        const CRun result = run(arguments);
        EXPECT_EQ(result.code, code) << message;
        EXPECT_THAT(result.messages, HasSubstr(message));
        EXPECT_EQ(contents(out), "as it was") << message;
    }
    EXPECT_EQ(run({"export", in, "Oak", mFolder.file("no/where")}).code, 74);
}

TEST_F(ToolShader, FileMayBeOutAndKeepsItsPreview)
{
    const std::string file = mFolder.put("house.zel", contents(sample("house.zel")));
    expectDone(run({"export", file, "Neon", mShader}));
    expectDone(run({"import", file, "Neon 2", mShader, file}));
    const json info = json::parse(runTool({"info", "--json", file}).output);
    EXPECT_EQ(info["preview"], json::parse(R"({"width":96,"height":64})"));
    EXPECT_EQ(materials(file).back()["name"], "Neon 2");
    EXPECT_EQ(runTool({"check", file}).output, "");
}

} // namespace

#endif
