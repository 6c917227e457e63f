#include "xml/tree/CXMLParser.h"

#include "tests/support/messageOf.h"
#include "tests/support/vtable.h"
#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

/// Writes down what it is told.
class CLog final : public CXMLParser {
public:
    std::string log;
    std::string stopAt;  // the instruction that stops
    std::string throwAt; // the element that throws
    std::size_t nbToRead = 1000;

private:
    void StartDocument() override { log += "start;"; }
    bool Instruction(const char* target, const char* content) override
    {
        log += std::string("?") + target + "|" + content + ";";
        return target != stopAt;
    }
    void Comment(const char* text) override { log += std::string("!") + text + ";"; }
    void* StartElement(const char* name) override
    {
        if (name == throwAt)
            throw std::runtime_error("done");
        log += std::string("<") + name + ";";
        return reinterpret_cast<void*>(++mNbElements);
    }
    void Attribute(const char* name, const char* value) override
    {
        log += std::string("@") + name + "=" + value + ";";
    }
    void Text(const char* text) override { log += std::string("'") + text + ";"; }
    void CData(XIXMLReadStream* stream) override
    {
        char bytes[1000];
        log += "[" + std::string(bytes, stream->Read(bytes, static_cast<std::uint32_t>(nbToRead))) +
               ";";
    }
    void EndElement(void* token) override
    {
        log += ">" + std::to_string(reinterpret_cast<std::uintptr_t>(token)) + ";";
    }

    std::uintptr_t mNbElements = 0;
};

const char* const kDocument = "<?xml version='1.0'?>\n<a x='1' y='&lt;'>\n <b/> t&amp;u <!--c-->"
                              "<c><![CDATA[data]]></c></a><?end?>";

} // namespace

TEST(XmlParser, TellsEventsInOrder)
{
    CLog log;
    CXMLTextSource source(kDocument);
    EXPECT_TRUE(log.Parse(&source));
    EXPECT_EQ(log.log,
              "start;?xml|version='1.0';<a;@x=1;@y=<;<b;>2;' t&u ;!c;<c;[data;>3;>1;?end|;");
}

TEST(XmlParser, FastParseSkipsSections)
{
    CLog log;
    CXMLTextSource source(kDocument);
    EXPECT_TRUE(log.FastParse(&source));
    EXPECT_EQ(log.log, "start;?xml|version='1.0';<a;@x=1;@y=<;<b;>2;' t&u ;!c;<c;>3;>1;?end|;");
}

TEST(XmlParser, OnlyFastParseTellsNoLine)
{
    CLog log;
    CXMLTextSource source("<a>\n<![CDATA[\n]]>\n</b>"), same("<a>\n<![CDATA[\n]]>\n</b>");
    EXPECT_EQ(messageOf([&] { log.Parse(&source); }),
              "XML syntax error in line 4: end tag does not match");
    EXPECT_EQ(messageOf([&] { log.FastParse(&same); }), "XML syntax error: end tag does not match");
}

TEST(XmlParser, TheHeadEndsWithTheNameOfTheRoot)
{
    for (const std::string behind : {" x='1'><b/></a>", "/>", ">text</c>", " <", "\t&"}) {
        CLog log;
        CXMLTextSource source("\n<?xml 1?><!--c--><!DOCTYPE a> <?Zel 2?><a" + behind);
        EXPECT_TRUE(log.ParseHead(&source));
        EXPECT_EQ(log.log, "start;?xml|1;!c;?Zel|2;<a;") << behind;
    }
    CLog stopped;
    stopped.stopAt = "Zel";
    CXMLTextSource stopping("<?Zel 2?><");
    EXPECT_FALSE(stopped.ParseHead(&stopping));
    for (const char* text :
         {"", "<?a b?>", "<?a b?>text<a/>", "<a", "<", "</a>", "<![CDATA[a]]>"}) {
        CLog log;
        CXMLTextSource source(text);
        EXPECT_NE(messageOf([&] { log.ParseHead(&source); }), "") << text;
    }
}

TEST(XmlParser, GoesOnBehindWhatTheHookLeft)
{
    CLog log;
    log.nbToRead = 2;
    CXMLTextSource source("<a><![CDATA[data]]><b/></a>");
    EXPECT_TRUE(log.Parse(&source));
    EXPECT_EQ(log.log, "start;<a;[da;<b;>2;>1;");
}

TEST(XmlParser, AnInstructionCanStop)
{
    CLog log;
    log.stopAt = "stop";
    CXMLTextSource source("<?go?><?stop now?><broken");
    EXPECT_FALSE(log.Parse(&source));
    EXPECT_EQ(log.log, "start;?go|;?stop|now;");
}

TEST(XmlParser, WhatAHookThrowsPassesThrough)
{
    CLog log;
    log.throwAt = "b";
    CXMLTextSource source("<a><b><broken");
    EXPECT_EQ(messageOf([&] { log.Parse(&source); }), "done");
    EXPECT_EQ(log.log, "start;<a;");
}

TEST(XmlParser, SyntaxErrorsCarryTheLine)
{
    CLog log;
    CXMLTextSource source("<a>\n\n</b>");
    EXPECT_EQ(messageOf([&] { log.Parse(&source); }),
              "XML syntax error in line 3: end tag does not match");
}

TEST(XmlParser, SlotsStandInTheirOrder)
{
    auto* log = new CLog;
    callSlot<void>(log, 2);
    EXPECT_TRUE(callSlot<bool>(log, 3, "t", "c"));
    callSlot<void>(log, 4, "comment");
    void* token = callSlot<void*>(log, 5, "e");
    callSlot<void>(log, 6, "n", "v");
    callSlot<void>(log, 7, "text");
    CXMLTextSource source("cdata");
    callSlot<void>(log, 8, static_cast<XIXMLReadStream*>(&source));
    callSlot<void>(log, 9, token);
    EXPECT_FALSE(callSlot<bool>(log, 10));
    EXPECT_EQ(log->log, "start;?t|c;!comment;<e;@n=v;'text;[cdata;>1;");
    callSlot<void>(log, 1); // deletes
}

} // namespace OrvaneXML
