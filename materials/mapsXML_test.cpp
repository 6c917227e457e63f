#include "materials/mapsXML.h"

#include "materials/CZelMultiMaps.h"
#include "tests/support/CTestElement.h"
#include "tests/support/messageOf.h"

#include <gtest/gtest.h>

using namespace OvZel;
using ZelTest::CTestElement;
using ZelTest::messageOf;

namespace {

using CSubParts = TObjectMgr<CZelSubPart, IZelSubPart>;

TZelComPtr<CSubParts> readParts(const std::string& xml)
{
    const CTestElement source(xml);
    TZelComPtr<CSubParts> list(new CSubParts(nullptr));
    list->newZelObject(-1); // reading empties the list
    readSubParts(CZelXMLGet(source.element()), *list);
    return list;
}

/// The element with what the write put in, without the declaration.
template <class Write>
std::string writtenBy(Write&& write)
{
    const CTestElement target;
    write(CZelXMLAdd(target.element()));
    const std::string text = target.text();
    return text.substr(text.find("<E"));
}

std::string failureOf(const std::string& xml)
{
    return messageOf([&] { readParts(xml); });
}

} // namespace

TEST(MapsXml, EachKindHasItsLabel)
{
    const char* labels[] = {"Diffuse", "Specular",   "Glossy", "Reflection", "Environment", "Alpha",
                            "Bump",    "Normal.Map", "Neon",   "Relief",     "Movie"};
    CZelMultiMaps maps;
    std::string expected = "<E><Maps>";
    for (std::int32_t kind = 1; kind <= 11; ++kind) {
        maps.setURL(kind, labels[kind - 1]);
        expected.append("<URL Type=\"").append(labels[kind - 1]).append("\">");
        expected.append(labels[kind - 1]).append("</URL>");
    }
    const std::string text = writtenBy([&](const CZelXMLAdd& out) { addMaps(out, maps); });
    EXPECT_EQ(text, expected + "</Maps></E>");

    CZelMultiMaps read;
    readMaps(CZelXMLGet(CZelXMLGet(CTestElement(text).element()).GetElement("Maps")), read);
    for (std::int32_t kind = 1; kind <= 11; ++kind)
        EXPECT_STREQ(read.getURL(kind), labels[kind - 1]);
}

TEST(MapsXml, AnEmptyAddressIsNotWritten)
{
    CZelMultiMaps maps;
    maps.setURL(3, "a.png");
    maps.setURL(3, "");
    const std::string text = writtenBy([&](const CZelXMLAdd& out) { addMaps(out, maps); });
    EXPECT_EQ(text, "<E><Maps/></E>");
    CZelMultiMaps read;
    readMaps(CZelXMLGet(CZelXMLGet(CTestElement(text).element()).GetElement("Maps")), read);
    EXPECT_STREQ(read.getURL(3), "");
}

TEST(MapsXml, TheOldSpellingOfReflectionIsReadAndNotWritten)
{
    const CTestElement source("<E><URL Type='Refletion'>a.png</URL><URL Type='Bump'/></E>");
    CZelMultiMaps maps;
    readMaps(CZelXMLGet(source.element()), maps);
    EXPECT_STREQ(maps.getURL(4), "a.png");
    EXPECT_STREQ(maps.getURL(7), "");
    EXPECT_EQ(writtenBy([&](const CZelXMLAdd& out) { addMaps(out, maps); }),
              "<E><Maps><URL Type=\"Reflection\">a.png</URL></Maps></E>");
}

TEST(MapsXml, AKindThatIsNotKnownRaises)
{
    const CTestElement source("<E><URL Type='Sound'>a</URL></E>");
    CZelMultiMaps maps;
    EXPECT_EQ(messageOf([&] { readMaps(CZelXMLGet(source.element()), maps); }),
              "Invalid label (Sound) [Diffuse..Movie]");
    const CTestElement bare("<E><URL>a</URL></E>");
    EXPECT_EQ(messageOf([&] { readMaps(CZelXMLGet(bare.element()), maps); }),
              "CZelXMLGet::GetAttributeLabel - NULL ptr for tag Type");
}

TEST(MapsXml, SubPartsComeBackWithTheirSizes)
{
    const TZelComPtr<CSubParts> list(new CSubParts(nullptr));
    CZelSubPart* part = list->append();
    part->setURL(1, "a.png");
    part->setURL(12, "never saved");
    part->setWidth(2.0);
    part->setHeight(3.0);
    list->append();
    const std::string text = writtenBy([&](const CZelXMLAdd& out) { addSubParts(out, *list); });
    EXPECT_EQ(text, "<E><Sub.Parts><Sub.Part><Maps><URL Type=\"Diffuse\">a.png</URL></Maps>"
                    "<Width>2.000000</Width><Height>3.000000</Height></Sub.Part>"
                    "<Sub.Part><Maps/><Width>1.000000</Width><Height>1.000000</Height></Sub.Part>"
                    "</Sub.Parts></E>");
    const auto read = readParts(text);
    ASSERT_EQ(read->size(), 2);
    EXPECT_STREQ(read->at(0)->getURL(1), "a.png");
    EXPECT_EQ(read->at(0)->getWidth(), 2.0);
    EXPECT_EQ(read->at(0)->getHeight(), 3.0);
    EXPECT_EQ(read->at(1)->getURL(1), nullptr);
}

TEST(MapsXml, OlderFilesHaveNumberedSizes)
{
    const auto list =
        readParts("<E><Maps><URL Type='Diffuse'>a</URL></Maps><Maps/>"
                  "<Maps><URL Type='Bump'>c</URL></Maps>"
                  "<Texture1Width>1.5</Texture1Width><Texture1Height>2.5</Texture1Height>"
                  "<Texture2Width>3.5</Texture2Width><Texture2Height>4.5</Texture2Height>"
                  "<Texture3Width>5.5</Texture3Width><Texture3Height>6.5</Texture3Height>"
                  "</E>");
    ASSERT_EQ(list->size(), 3);
    EXPECT_STREQ(list->at(0)->getURL(1), "a");
    EXPECT_EQ(list->at(0)->getWidth(), 1.5);
    EXPECT_EQ(list->at(0)->getHeight(), 2.5);
    EXPECT_EQ(list->at(1)->getWidth(), 3.5);
    EXPECT_STREQ(list->at(2)->getURL(7), "c");
    EXPECT_EQ(list->at(2)->getHeight(), 6.5);
}

TEST(MapsXml, NeitherFormIsNoSubPart)
{
    EXPECT_EQ(readParts("<E/>")->size(), 0);
    // "Sub.Parts" alone decides which form it is.
    EXPECT_EQ(readParts("<E><Sub.Parts/><Maps/></E>")->size(), 0);
}

TEST(MapsXml, WhatASubPartLacksStopsTheLoad)
{
    const std::string missing = "CZelXMLGet::GetElement - NULL ptr for tag ";
    EXPECT_EQ(failureOf("<E><Sub.Parts><Sub.Part/></Sub.Parts></E>"), missing + "Maps");
    // Height is read ahead of the width.
    EXPECT_EQ(failureOf("<E><Sub.Parts><Sub.Part><Maps/></Sub.Part></Sub.Parts></E>"),
              missing + "Height");
    EXPECT_EQ(failureOf("<E><Sub.Parts><Sub.Part><Maps/><Height>1</Height></Sub.Part></Sub.Parts>"
                        "</E>"),
              missing + "Width");
    EXPECT_EQ(failureOf("<E><Maps/><Texture1Height>1</Texture1Height></E>"),
              missing + "Texture1Width");
    EXPECT_EQ(failureOf("<E><Maps/><Texture1Width>1</Texture1Width></E>"),
              missing + "Texture1Height");
}
