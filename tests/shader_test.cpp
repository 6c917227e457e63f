#include "tests/support/CClientDocument.h"
#include "tests/support/textOf.h"
#include "tests/support/zelFile.h"

#include <zel/ILeafNode.h>
#include <zel/ITCENode.h>
#include <zel/IZelProperty.h>
#include <zel/IZelTCE.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Materials in documents of their own.

namespace {

using namespace OvZel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using ZelTest::CClientDocument;
using ZelTest::CMemoryReadStream;
using ZelTest::CMemoryWriteStream;
using ZelTest::kIdA;
using ZelTest::kIdB;
using ZelTest::kIdC;
using ZelTest::kNoId;
using ZelTest::textOf;

constexpr CZelColor kColor = CZelColor::rgb(1, 2, 3);

/// A leaf with that colour; `kind` is its attribute "Type".
std::string leaf(const std::string& kind = "Leaf")
{
    return "<Node Id=\"" + kIdA + "\" Type=\"" + kind +
           "\"><Diffuse R=\"1\" G=\"2\" B=\"3\"/><Transparent R=\"0\" G=\"0\" B=\"0\"/>"
           "<Specular R=\"0\" G=\"0\" B=\"0\"/><Reflection R=\"0\" G=\"0\" B=\"0\"/>"
           "<Neon.Color R=\"0\" G=\"0\" B=\"0\"/><Neon.Value>0</Neon.Value>"
           "<Refraction>1</Refraction><Glossy>7</Glossy></Node>";
}

std::string older(const std::string& node)
{
    return "<Orvane.Shader>" + node + "</Orvane.Shader>";
}

std::string whole(const std::string& attributes = " Id=\"" + kIdB + "\" Overload.Prop.Index=\"" +
                                                  kIdC + "\" Overload.Id=\"" + kNoId + "\"")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Zel.Shader><Property" + attributes +
           "><Name en=\"Oak\"/><Smooth>0.5</Smooth><Scale>2</Scale><URL/>" + leaf() +
           "</Property></Zel.Shader>";
}

/// A document with a material.
class Shader : public testing::Test {
protected:
    bool read(const std::string& text, std::size_t step = CMemoryReadStream::kWhole)
    {
        CMemoryReadStream stream(text, step);
        return document.more().readShader(property, &stream);
    }
    bool write()
    {
        CMemoryWriteStream stream;
        const bool good = document.more().writeShader(property, &stream);
        written = stream.text;
        return good;
    }
    ITCENode* first() { return property->getTCE()->getRootNode()->getChild(0); }

    CClientDocument document;
    IZelProperty* property = document->getProperties()->newZelObject(-1);
    std::string written;
};

TEST_F(Shader, TheOlderFormReplacesTheNodesAlone)
{
    property->getBasicData()->setName("Mine");
    property->setMapAngle(1.0);
    ASSERT_TRUE(read(older(leaf())));
    EXPECT_EQ(property->getTCE()->getRootNode()->getNbChilds(), 1);
    EXPECT_EQ(property->getDiffuseColor(), kColor);
    EXPECT_EQ(property->getGlossy(), 7.0);
    EXPECT_EQ(textOf(first()->getId()), kIdA);
    EXPECT_EQ(first()->getParent(), property->getTCE()->getRootNode());
    EXPECT_STREQ(property->getBasicData()->getName(), "Mine");
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST_F(Shader, TheOtherFormIsTheWholeProperty)
{
    for (const std::size_t step : {CMemoryReadStream::kWhole, std::size_t{1}}) {
        ASSERT_TRUE(read(whole(), step));
        EXPECT_STREQ(property->getBasicData()->getName(), "Oak");
        EXPECT_EQ(property->getSmooth(), 0.5);
        EXPECT_EQ(property->getScale(), 2.0);
        EXPECT_FALSE(property->getVisible());
        EXPECT_EQ(property->getDiffuseColor(), kColor);
        EXPECT_EQ(textOf(*property->getBasicData()->getId()), kIdB);
        EXPECT_EQ(textOf(property->getOverloadPropIndex()), kIdC);
        EXPECT_THAT(document.takeMessages(), IsEmpty());
    }
}

TEST_F(Shader, WhatIsNoShaderIsToldAndRefused)
{
    const struct {
        std::string text;
        const char* message;
    } cases[] = {
        {"", "CZEL::readShader - Only XML shader are supported"},
        {" <Orvane.Shader/>", "CZEL::readShader - Only XML shader are supported"},
        {"\xEF\xBB\xBF<Orvane.Shader/>", "CZEL::readShader - Only XML shader are supported"},
        {"BM", "CZEL::readShader - Only XML shader are supported"},
        {"<Zel.File/>", "This is not a shader"},
        {"<Zel.Shader/>", "Missing property data"},
        {"<Zel.Shader>" + leaf() + "</Zel.Shader>", "Missing property data"},
        {older(""), "CZelXMLGet::GetElement - NULL ptr for tag Node"},
        {older(leaf("Stone")), "Invalid label (Stone) [Root..Custom]"},
        {older("<Node Type=\"Root\"/>"), "Can't root's child"},
        {older("<Node Type=\"Leaf\"/>"), "CZelXMLGet::CZelXMLGet - NULL ptr"},
        {whole(""), "Exception in CZelXMLBasicData::initWithXML : "
                    "CZelXMLGet::GetUUID - NULL ptr for tag Id"},
    };
    for (const auto& [text, message] : cases) {
        EXPECT_FALSE(read(text)) << text;
        EXPECT_THAT(document.takeMessages(), ElementsAre(message)) << text;
    }
}

TEST_F(Shader, BrokenXMLIsToldAndRefused)
{
    EXPECT_FALSE(read("<Orvane.Shader>"));
    EXPECT_THAT(document.takeMessages(), testing::SizeIs(1));
    EXPECT_EQ(first(), nullptr);
}

TEST_F(Shader, AFailedReadLeavesThePropertyAsFarAsItCame)
{
    EXPECT_FALSE(read(whole("")));
    EXPECT_STREQ(property->getBasicData()->getName(), "Oak");
    EXPECT_EQ(property->getDiffuseColor(), kColor);
    property->setMapAngle(1.0);
    EXPECT_FALSE(read(older("<Node Type=\"Leaf\"/>")));
    EXPECT_NE(property->getMappingNode(0), nullptr);
}

TEST_F(Shader, MissingArgumentsOfAReadAreTold)
{
    CMemoryReadStream stream(older(leaf()));
    EXPECT_FALSE(document.more().readShader(property, nullptr));
    EXPECT_FALSE(document.more().readShader(nullptr, &stream));
    EXPECT_FALSE(document.more().readShader(nullptr, nullptr));
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("read stream is NULL", "Can't get root node", "read stream is NULL"));
    EXPECT_EQ(stream.position, 0u);
}

TEST_F(Shader, TheStreamIsReadFromWhereItStands)
{
    CMemoryReadStream stream("BM" + older(leaf()));
    stream.position = 2;
    EXPECT_TRUE(document.more().readShader(property, &stream));
    EXPECT_EQ(property->getDiffuseColor(), kColor);

    CMemoryReadStream refused("abc");
    refused.position = 1;
    EXPECT_FALSE(document.more().readShader(property, &refused));
    EXPECT_EQ(refused.position, 1u);
}

TEST_F(Shader, FailuresOfTheStreamAreTold)
{
    const struct {
        CMemoryReadStream::CFailure failure;
        const char* message;
    } cases[] = {{CMemoryReadStream::throwText, "stream broke"},
                 {CMemoryReadStream::throwInt, "Unknown shader reading error"}};
    for (const auto& [failure, message] : cases)
        for (const std::size_t failsAt : {0u, 1u}) {
            CMemoryReadStream stream(older(leaf()), 1);
            stream.failsAt = failsAt;
            stream.failure = failure;
            EXPECT_FALSE(document.more().readShader(property, &stream));
            EXPECT_THAT(document.takeMessages(), ElementsAre(message));
        }
}

TEST_F(Shader, AWriteGivesTheNodesAlone)
{
    property->setDiffuseColor(kColor);
    first()->setId(CZelUUID(kIdA.c_str()));
    ASSERT_TRUE(write());
    EXPECT_THAT(written, HasSubstr("<Zel.Shader>"));
    EXPECT_THAT(written, HasSubstr("<Node Id=\"" + kIdA + "\" Type=\"Leaf\""));
    EXPECT_THAT(written, HasSubstr("<Diffuse R=\"1\" G=\"2\" B=\"3\"/>"));
    EXPECT_THAT(written, Not(HasSubstr("Property")));
    EXPECT_THAT(written, Not(HasSubstr("<?Zel ")));
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

TEST_F(Shader, WhatWasWrittenIsNotWhatIsRead)
{
    property->setDiffuseColor(kColor);
    ASSERT_TRUE(write());
    EXPECT_FALSE(read(written));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Missing property data"));
}

TEST_F(Shader, WithoutNodesNothingIsWritten)
{
    EXPECT_FALSE(write());
    EXPECT_EQ(written, "");
    EXPECT_THAT(document.takeMessages(), ElementsAre("Property root's child is NULL"));
    EXPECT_EQ(first(), nullptr);
}

TEST_F(Shader, AMappingNodeWithoutAChildCannotBeWritten)
{
    ITCENode* node = property->getTCE()->createNode(eMappingNode);
    property->getTCE()->getRootNode()->addChild(node);
    node->Release();
    EXPECT_FALSE(write());
    EXPECT_EQ(written, "");
    EXPECT_THAT(document.takeMessages(), ElementsAre("Unknown exception"));
}

TEST_F(Shader, MissingArgumentsOfAWriteAreTold)
{
    CMemoryWriteStream stream;
    EXPECT_FALSE(document.more().writeShader(nullptr, &stream));
    property->setDiffuseColor(kColor);
    EXPECT_FALSE(document.more().writeShader(property, nullptr));
    EXPECT_THAT(document.takeMessages(), ElementsAre("Property is NULL", "Unknown exception"));
    EXPECT_EQ(stream.text, "");
}

TEST_F(Shader, FailuresOfTheTargetAreTold)
{
    property->setDiffuseColor(kColor);
    CMemoryWriteStream full;
    full.room = 10;
    EXPECT_FALSE(document.more().writeShader(property, &full));
    class CThrowsInt : public IZelWriteStream {
    public:
        std::uint32_t write(const void*, std::uint32_t) override { throw 1; }
    } odd;
    EXPECT_FALSE(document.more().writeShader(property, &odd));
    EXPECT_THAT(document.takeMessages(), ElementsAre("disk full", "Unknown shader writing error"));
}

TEST_F(Shader, APropertyLoadsTheDocumentOfItsUrl)
{
    CMemoryReadStream good(whole());
    EXPECT_TRUE(property->setShaderUrl("file:///oak.xml", &good));
    EXPECT_STREQ(property->getShaderUrl(), "file:///oak.xml");
    EXPECT_STREQ(property->getBasicData()->getName(), "Oak");

    CMemoryReadStream again(older(leaf()));
    EXPECT_TRUE(property->setShaderUrl(property->getShaderUrl(), &again));
    EXPECT_STREQ(property->getShaderUrl(), "file:///oak.xml");

    CMemoryReadStream bad("BM");
    EXPECT_FALSE(property->setShaderUrl("file:///ash.xml", &bad));
    EXPECT_STREQ(property->getShaderUrl(), "");
    EXPECT_EQ(property->getDiffuseColor(), kColor);
    EXPECT_THAT(document.takeMessages(),
                ElementsAre("CZEL::readShader - Only XML shader are supported"));
}

TEST_F(Shader, AUrlWithoutAStreamIsNotStored)
{
    property->getTCE()->setUrl("file:///oak.xml");
    EXPECT_FALSE(property->setShaderUrl("file:///ash.xml", nullptr));
    EXPECT_STREQ(property->getShaderUrl(), "");
    EXPECT_THAT(document.takeMessages(), ElementsAre("read stream is NULL"));
}

TEST_F(Shader, AKeptPropertyLoadsNothingOnceTheDocumentIsGone)
{
    property->AddRef();
    document.release();
    CMemoryReadStream stream(older(leaf()));
    EXPECT_FALSE(property->setShaderUrl("file:///oak.xml", &stream));
    EXPECT_STREQ(property->getShaderUrl(), "");
    EXPECT_EQ(stream.position, 0u);
    property->Release();
}

TEST_F(Shader, FreeOnesAreNeverSaved)
{
    IZelProperty* one = document.more().newShader();
    IZelProperty* two = document.more().newShader();
    ASSERT_NE(one, nullptr);
    ASSERT_NE(two, nullptr);
    EXPECT_NE(one, two);
    one->getBasicData()->setName("One of the free ones");
    EXPECT_THAT(document.save(), Not(HasSubstr("One of the free ones")));
    EXPECT_EQ(document->getProperties()->getNbObjects(), 1);

    document.more().removeShader(nullptr);
    document.more().removeShader(property);
    EXPECT_EQ(document->getProperties()->getNbObjects(), 1);
    EXPECT_THAT(document.takeMessages(), IsEmpty());
}

/// Client data that tells when it is released.
class CTold : public IUnknown {
public:
    std::int32_t QueryInterface(const CZelUUID&, void**) override { return kQueryNoInterface; }
    std::uint32_t AddRef() override { return 1; }
    std::uint32_t Release() override
    {
        ++nbReleased;
        return 1;
    }

    int nbReleased = 0;
};

TEST_F(Shader, OfTheFreeOnesOnlyTheFirstCanBeRemoved)
{
    CTold first, second;
    const CZelUUID key(kIdA.c_str());
    IZelProperty* one = document.more().newShader();
    IZelProperty* two = document.more().newShader();
    one->getBasicData()->setUserData(&key, &first);
    two->getBasicData()->setUserData(&key, &second);
    document.more().removeShader(two);
    EXPECT_EQ(second.nbReleased, 0) << "not the first";
    document.more().removeShader(one);
    EXPECT_EQ(first.nbReleased, 1);
    document.more().removeShader(two);
    EXPECT_EQ(second.nbReleased, 1);
}

} // namespace
