#include "xml/tree/CXMLTreeReader.h"

#include "tests/support/messageOf.h"
#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <vector>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

/// Answers every section with a function and writes down the elements.
class CCallback final : public IXMLCDataReader {
public:
    using TAction = std::function<bool(XIXMLElement*, XIXMLReadStream*)>;

    explicit CCallback(TAction action) : mAction(std::move(action)) {}
    bool ReadCData(XIXMLElement* element, XIXMLReadStream* stream) override
    {
        elements += std::string(element->GetKey()) + ";";
        return mAction(element, stream);
    }
    std::string elements;

private:
    TAction mAction;
};

std::string readAll(XIXMLReadStream* stream, std::uint32_t size = 4096)
{
    std::string all;
    std::vector<char> piece(size);
    while (const std::uint32_t nb = stream->Read(piece.data(), size))
        all.append(piece.data(), nb);
    return all;
}

const char* const kEverything = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                "<!--before-->\n"
                                "<Zel.File a=\"&amp;&lt;&gt;&quot;&#9;&#10;&#13;\" a=\"2\">\n"
                                "\t<3D.Paths/>\n"
                                "\t<Text> a &#13;&#1; b\n\t</Text>\n"
                                "\t<White> \n</White>\n"
                                "\t<Mixed>one<b/>two<!--x--><c><d/></c> three</Mixed>\n"
                                "\t<Comments><!--a--><?b c?></Comments>\n"
                                "\t<Points U=\"1\"><![CDATA[1 2 <>& ]] ]> 3\r\n]]></Points>\n"
                                "\t<Empty><![CDATA[]]></Empty>\n"
                                "\t<!--inside-->\n"
                                "\t<?inside too?>\n"
                                "\t<Keep>&#32;<e/></Keep>\n"
                                "</Zel.File>\n"
                                "<!--behind -->\n";

} // namespace

TEST(XmlTreeReader, ADocumentComesBackByteForByteHoweverItArrives)
{
    for (std::size_t most : {1u, 2u, 3u, 7u, 1'000'000u})
        EXPECT_EQ(written(*readTree(kEverything, most)), kEverything) << most;
}

TEST(XmlTreeReader, RoundTrips)
{
    struct {
        const char *text, *written;
    } cases[] = {
        {"<a></a>", "<a/>\n"},
        {"\xEF\xBB\xBF<a/>", "<a/>\n"},
        {"<a>\n<b/>  <c/>\n</a>", "<a>\n\t<b/>\n\t<c/>\n</a>\n"},
        {"<a> </a>", "<a> </a>\n"},
        {"<a>\r\n</a>", "<a>\n</a>\n"},
        {"<a> <!--c--> </a>", "<a> <!--c--> </a>\n"},
        {"<a> <!--c--> <b/> <!--d--> </a>", "<a>\n\t<!--c-->\n\t<b/>\n\t<!--d-->\n</a>\n"},
        {"<a> <b> <c/> </b> <!--d--> <e/></a>",
         "<a>\n\t<b>\n\t\t<c/>\n\t</b>\n\t<!--d-->\n\t<e/>\n</a>\n"},
        {"<a>x <b/> </a>", "<a>x <b/></a>\n"},
        {"<a>&#32;<b/>&#9;</a>", "<a>&#32;<b/>&#9;</a>\n"},
        {"<a>&#32;</a>", "<a> </a>\n"},
        {"<a>x<b> <!--c--> </b></a>", "<a>x<b> <!--c--> </b></a>\n"},
        {"<a>\n<![CDATA[d]]>\n</a>", "<a>\n<![CDATA[d]]>\n</a>\n"},
        {"<a>x<!--c-->y</a>", "<a>x<!--c-->y</a>\n"},
        {"<!DOCTYPE a><a x='it&apos;s'/>", "<a x=\"it's\"/>\n"},
        {"<a>\xC3\xA9&#xE9;\xFF</a>", "<a>\xC3\xA9\xC3\xA9\xFF</a>\n"},
        {"<a><!--\r\n--></a>", "<a><!--\r\n--></a>\n"},
        {"<a>&#127;</a>", "<a>&#127;</a>\n"},
    };
    for (const auto& item : cases) {
        const std::string once = written(*readTree(item.text));
        EXPECT_EQ(once, item.written) << item.text;
        EXPECT_EQ(written(*readTree(once)), once) << item.text;
    }
}

TEST(XmlTreeReader, TextAroundAReferenceIsOneNode)
{
    const CTreePtr tree = readTree("<a>x&amp;y<!--c-->z</a>");
    XIXMLData* text = tree->GetRoot()->GetFirstElement()->GetFirstText();
    EXPECT_STREQ(text->GetText(), "x&y");
    EXPECT_STREQ(text->GetNextNode()->GetNextNode()->GetText(), "z");
    EXPECT_EQ(text->GetNextNode()->GetNextNode()->GetNextNode(), nullptr);
}

TEST(XmlTreeReader, InstructionsStandAtTheRoot)
{
    const CTreePtr tree = readTree("<?xml version=\"1.0\"?><?Zel a?><Zel.File/>");
    XIXMLData* node = tree->GetRoot()->GetFirstNode();
    EXPECT_STREQ(node->AsInstruction()->GetTarget(), "xml");
    EXPECT_STREQ(node->AsInstruction()->GetContent(), "version=\"1.0\"");
    EXPECT_STREQ(node->GetNextNode()->AsInstruction()->GetTarget(), "Zel");
    EXPECT_EQ(node->GetNextNode()->GetNextNode()->AsElement(), tree->GetRoot()->GetFirstElement());
}

TEST(XmlTreeReader, WhatTheCallbackDoesDecidesWhatIsKept)
{
    struct {
        const char* what;
        CCallback::TAction action;
        const char* written;
    } cases[] = {
        {"reads nothing, true", [](auto*, auto*) { return true; }, "<a>x<b/>y</a>\n"},
        {"reads nothing, false", [](auto*, auto*) { return false; },
         "<a>x<![CDATA[12]34]]><b/><![CDATA[]]>y</a>\n"},
        {"reads half, true",
         [](auto*, XIXMLReadStream* stream) {
             char two[2];
             stream->Read(two, 2);
             return true;
         },
         "<a>x<b/>y</a>\n"},
        {"reads half, false",
         [](auto*, XIXMLReadStream* stream) {
             char two[2];
             stream->Read(two, 2);
             return false;
         },
         "<a>x<b/>y</a>\n"},
        {"reads all and beyond, false",
         [](auto*, XIXMLReadStream* stream) {
             readAll(stream);
             EXPECT_EQ(readAll(stream), "");
             return false;
         },
         "<a>x<b/>y</a>\n"},
        {"sets a provider",
         [](XIXMLElement* element, XIXMLReadStream* stream) {
             element->SetCData(new CBytes("<" + readAll(stream, 1) + ">"));
             return true;
         },
         // The second section replaces the provider of the first.
         "<a>x<![CDATA[<>]]><b/>y</a>\n"},
    };
    for (const auto& item : cases)
        for (std::size_t most : {1u, 2u, 1'000u}) {
            CCallback callback(item.action);
            const CTreePtr tree =
                readTree("<a>x<![CDATA[12]34]]><b/><![CDATA[]]>y</a>", most, &callback);
            EXPECT_EQ(written(*tree), item.written) << item.what;
            EXPECT_EQ(callback.elements, "a;a;") << item.what;
        }
    EXPECT_EQ(CBytes::nbAlive, 0);
}

TEST(XmlTreeReader, TextAroundASkippedSectionIsOneNode)
{
    CCallback callback([](auto*, auto*) { return true; });
    const CTreePtr tree = readTree("<a>x<![CDATA[1]]>y<![CDATA[2]]></a>", 1000, &callback);
    XIXMLData* text = tree->GetRoot()->GetFirstElement()->GetFirstText();
    EXPECT_STREQ(text->GetText(), "xy");
    EXPECT_EQ(text->GetNextNode(), nullptr);
}

TEST(XmlTreeReader, ManySectionsBehindManyElementsTakeNoSearchEach)
{
    constexpr int kNb = 100'000;
    std::string text = "<a>";
    for (int i = 0; i < kNb; ++i)
        text += "<b/>";
    for (int i = 0; i < kNb; ++i)
        text += "<![CDATA[]]><c><![CDATA[]]></c>";
    int nbSections = 0;
    CCallback callback([&](XIXMLElement* element, auto*) {
        element->SetCData(new CBytes(std::to_string(++nbSections)));
        return true;
    });
    const std::clock_t start = std::clock();
    const CTreePtr tree = readTree(text + "</a>", 1'000'000, &callback);
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC); // a search each takes minutes
    EXPECT_EQ(CBytes::nbAlive, kNb + 1);
    EXPECT_EQ(written(*tree).substr(3 + 4 * kNb, 27), "<![CDATA[199999]]><c><![CDA");
}

TEST(XmlTreeReader, TheStreamEndsWithTheSection)
{
    std::string seen;
    CCallback callback([&](auto*, XIXMLReadStream* stream) {
        seen += readAll(stream, 100'000) + "|";
        return true;
    });
    const std::string brackets(70'000, ']'); // the last two are a part of the mark
    readTree("<a><b><![CDATA[" + brackets + ">]]</b><c><![CDATA[x]]></c></a>", 1'000'000,
             &callback);
    EXPECT_TRUE(seen == brackets.substr(2) + "|x|");
}

TEST(XmlTreeReader, SectionsOfAnySizeArriveWhole)
{
    for (std::size_t size : {0u, 1u, 65'500u, 65'536u, 200'000u}) {
        std::string seen;
        CCallback callback([&](auto*, XIXMLReadStream* stream) {
            seen = readAll(stream, 100'000);
            return true;
        });
        std::string bytes(size, 'x');
        for (std::size_t i = 0; i < size; i += 3)
            bytes[i] = ']';
        const CTreePtr tree =
            readTree("<a><b><![CDATA[" + bytes + "]]></b><c/></a>", 1'000'000, &callback);
        EXPECT_TRUE(seen == bytes) << size;
        EXPECT_EQ(written(*tree), "<a>\n\t<b/>\n\t<c/>\n</a>\n");
    }
}

TEST(XmlTreeReader, WhatTheCallbackThrowsPassesThrough)
{
    CCallback callback([](XIXMLElement* element, auto*) -> bool {
        element->SetCData(new CBytes("x"));
        throw std::runtime_error("stop");
    });
    EXPECT_EQ(messageOf([&] { readTree("<a>t<![CDATA[1]]></a>", 1000, &callback); }), "stop");
    EXPECT_EQ(CBytes::nbAlive, 0);
}

TEST(XmlTreeReader, EveryPrefixFails)
{
    const std::string text = std::string("<?xml v?><!DOCTYPE a [<!ENTITY b 'c'>]><a x='&lt;'>") +
                             "t&#65;<!--c--><b/><![CDATA[d]]></a>";
    for (std::size_t size = 0; size < text.size(); ++size)
        EXPECT_THROW(readTree(text.substr(0, size)), std::runtime_error) << size;
    EXPECT_NO_THROW(readTree(text));
}

TEST(XmlTreeReader, AnyChangedByteIsRefusedOrStable)
{
    const std::string text = "<?x y?><!DOCTYPE a [<!E '>'>]><a x='&lt;' y=\"2\">t&#65; "
                             "<!--c--><b/> <c> </c><![CDATA[d]]></a>\n";
    std::size_t nbRead = 0;
    for (std::size_t place = 0; place < text.size(); ++place)
        for (int byte = 0; byte < 256; ++byte) {
            std::string changed = text;
            changed[place] = static_cast<char>(byte);
            CTreePtr tree;
            if (messageOf([&] { tree = readTree(changed); }) != "no exception")
                continue;
            ++nbRead;
            const std::string once = written(*tree);
            ASSERT_EQ(written(*readTree(once)), once) << changed;
        }
    EXPECT_GT(nbRead, text.size());
}

TEST(XmlTreeReader, ATextAroundSkippedSectionsIsOneAndAppearsBehindThem)
{
    int nbTexts = 0;
    CCallback skip([&](XIXMLElement* element, XIXMLReadStream* stream) {
        readAll(stream);
        nbTexts += element->GetFirstText() != nullptr;
        return true;
    });
    const CTreePtr tree =
        readTree("<a>x<![CDATA[1]]>y<![CDATA[2]]> z</a>", CXMLTextSource::kWhole, &skip);
    EXPECT_EQ(nbTexts, 0);
    XIXMLData* text = tree->GetRoot()->GetFirstElement()->GetFirstNode();
    EXPECT_STREQ(text->GetText(), "xy z");
    EXPECT_EQ(text->GetNextNode(), nullptr);
}

} // namespace OrvaneXML
