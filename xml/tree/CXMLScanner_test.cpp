#include "xml/tree/CXMLScanner.h"

#include "tests/support/messageOf.h"
#include "tests/support/xmlTree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace OrvaneXML {

using namespace ZelTest;

namespace {

using EToken = CXMLScanner::EToken;

std::string startOf(const CXMLScanner& scanner)
{
    std::string text = "<" + std::string(scanner.Name());
    for (std::size_t i = 0; i < scanner.NbAttributes(); ++i)
        text += " " + std::string(scanner.AttributeName(i)) + "=" +
                std::string(scanner.AttributeValue(i));
    return text + ">";
}

/// Everything that a scanner says about a document, as one line.
std::string tokensOf(const std::string& text, std::size_t most = ~std::size_t{0})
{
    CXMLTextSource source(text, most);
    CXMLScanner scanner(source);
    std::string log;
    for (;;) {
        switch (scanner.Next()) {
        case EToken::End:
            return log;
        case EToken::StartTag:
            log += startOf(scanner);
            break;
        case EToken::Leaf:
            log += startOf(scanner);
            if (!scanner.Text().empty())
                log += "t(" + std::string(scanner.Text()) + ")";
            log += "</>";
            break;
        case EToken::EndTag:
            log += "</>";
            break;
        case EToken::Text:
            log += (scanner.IsWhite() ? "w(" : "t(") + std::string(scanner.Text()) + ")";
            break;
        case EToken::Comment:
            log += "c(" + std::string(scanner.Text()) + ")";
            break;
        case EToken::Instruction:
            log += "i(" + std::string(scanner.Name()) + "|" + std::string(scanner.Text()) + ")";
            break;
        case EToken::CData: {
            log += "d(";
            char bytes[5];
            while (const std::uint32_t nb = scanner.ReadSection(bytes, sizeof bytes))
                log.append(bytes, nb);
            log += ")";
        }
        }
    }
}

} // namespace

TEST(XmlScanner, Tokens)
{
    struct {
        const char *text, *tokens;
    } cases[] = {
        {"<a/>", "<a></>"},
        {" \r\n<a />\n", "<a></>"},
        {"\xEF\xBB\xBF<a/>", "<a></>"},
        {"<a></a >", "<a></>"},
        {"<a></a>", "<a></>"},
        {"<a>b</a >", "<a>t(b)</>"},
        {"<a x='1'>b>c</a>", "<a x=1>t(b>c)</>"},
        {"<a>b </a>", "<a>t(b )</>"},
        {"<a> b</a>", "<a>t( b)</>"},
        {"<a><b>c</b><b/><b></b>d<b>e</b></a>", "<a><b>t(c)</><b></><b></>t(d)<b>t(e)</></>"},
        {"<a>b<![CDATA[c]]></a>", "<a>t(b)d(c)</>"},
        {"<a>b<!--c--></a>", "<a>t(b)c(c)</>"},
        {"<ab>c<a/></ab>", "<ab>t(c)<a></></>"},
        {"<3D.Paths 2d='1'/>", "<3D.Paths 2d=1></>"},
        {"<a x = 'say \"hi\"' y=\"it's\"/>", "<a x=say \"hi\" y=it's></>"},
        {"<a x='1'y='2'/>", "<a x=1 y=2></>"},
        {"<a x='1' x='2'/>", "<a x=1 x=2></>"},
        {"<a x=''/>", "<a x=></>"},
        {"<a\n x='1'\n\ty='2'\n/>", "<a x=1 y=2></>"},
        {"<a x='1\t2\n3\r\n4\r5'/>", "<a x=1 2 3 4 5></>"},
        {"<a x='&#9;&#10;&#13;'/>", "<a x=\t\n\r></>"},
        {"<a x='<>'/>", "<a x=<>></>"},
        {"<a>1\r\n2\r3\n4</a>", "<a>t(1\n2\n3\n4)</>"},
        {"<a>&amp;&lt;&gt;&quot;&apos;</a>", "<a>t(&<>\"')</>"},
        {"<a>&#65;&#x41;&#x6a;&#xE9;&#x20AC;&#x1F600;&#0065;</a>",
         "<a>t(AAj\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"
         "A)</>"},
        {"<a>&#1;&#x10FFFF;</a>", "<a>t(\x01\xF4\x8F\xBF\xBF)</>"},
        {"<a> \n</a>", "<a>w( \n)</>"},
        {"<a>\r\n</a>", "<a>w(\n)</>"},
        {"<a>&#32;</a>", "<a>t( )</>"},
        {"<a>x]]>y</a>", "<a>t(x]]>y)</>"},
        {"<!----><a><!--b--><!-- - -- > --></a><!-->-->", "c()<a>c(b)c( - -- > )</>c(>)"},
        {"<?a?><?b c?><?d \t\ne f?g? ?><a/>", "i(a|)i(b|c)i(d|e f?g? )<a></>"},
        {"<?a?\?><a/>", "i(a?|)<a></>"},
        {"<a><![CDATA[]]></a>", "<a>d()</>"},
        {"<a><![CDATA[<&>\r\n]]</a>]]]]></a>", "<a>d(<&>\r\n]]</a>]])</>"},
        {"<a><![CDATA[]]]><![CDATA[]>]] ]]></a>", "<a>d(])d(]>]] )</>"},
        {"<!DOCTYPE a><a/>", "<a></>"},
        {"<!DOCTYPE a SYSTEM \"x>y\" [<!ENTITY e '>\"<'><!-- ' > ]> --><?p ' > ?>]>\n<a/>",
         "<a></>"},
        {"<!DOCTYPE a [<!--a---> <?b?\?>]><a/>", "<a></>"},
    };
    for (const auto& item : cases)
        for (std::size_t most : {1u, 2u, 3u, 7u, 1'000'000u})
            EXPECT_EQ(tokensOf(item.text, most), item.tokens) << item.text << " by " << most;
}

TEST(XmlScanner, SyntaxErrorsCarryTheirLine)
{
    struct {
        std::string text;
        const char* error;
    } cases[] = {
        {"", "1: no root element"},
        {" \n<!--c-->", "2: no root element"},
        {"<a>", "1: end tag missing"},
        {"<a>\n\n<b></b>\n", "4: end tag missing"},
        {"<a>\n</b>", "2: end tag does not match"},
        {"<a><b></a></b>", "1: end tag does not match"},
        {"<a></aa>", "1: end tag does not match"},
        {"<aa></a>", "1: end tag does not match"},
        {"</a>", "1: end tag does not match"},
        {"<a/></a>", "1: end tag does not match"},
        {"<a></a x='1'>", "1: \">\" expected"},
        {"<a>b</a", "1: unexpected end"},
        {"<a>b</ab>", "1: end tag does not match"},
        {"<a>b</a><a>c</a>", "1: more than one root element"},
        {"<a/>\n<b/>", "2: more than one root element"},
        {"x<a/>", "1: text outside the root element"},
        {"<a/>\n\nx", "3: text outside the root element"},
        {"<a/>&#32;", "1: text outside the root element"},
        {"<![CDATA[x]]><a/>", "1: text outside the root element"},
        {"<a>\n\n&foo;</a>", "3: unknown reference"},
        {"<!DOCTYPE a [<!ENTITY foo 'x'>]><a>&foo;</a>", "1: unknown reference"},
        {"<a x='&foo;'/>", "1: unknown reference"},
        {"<a>&amp</a>", "1: unknown reference"},
        {"<a>&;</a>", "1: unknown reference"},
        {"<a>&#;</a>", "1: unknown reference"},
        {"<a>&#x;</a>", "1: unknown reference"},
        {"<a>&#0;</a>", "1: unknown reference"},
        {"<a>&#xD800;</a>", "1: unknown reference"},
        {"<a>&#x110000;</a>", "1: unknown reference"},
        {"<a>&#99999999999999999999;</a>", "1: unknown reference"},
        {"<a>&#12x;</a>", "1: unknown reference"},
        {"<a>&AMP;</a>", "1: unknown reference"},
        {"<a x/>", "1: \"=\" expected"},
        {"<a\n\nx='1' y/>", "3: \"=\" expected"},
        {"<a x=1/>", "1: quote expected"},
        {"<a x='1/>", "1: unexpected end"},
        {"<a ='1'/>", "1: bad name"},
        {"<a / >", "1: \">\" expected"},
        {"< a/>", "1: bad name"},
        {"<>", "1: bad name"},
        {"<a\x01/>", "1: bad name"},
        {"<a'/>", "1: bad name"},
        {"<a", "1: unexpected end"},
        {"<", "1: unexpected end"},
        {"<a><!--x--", "1: unexpected end"},
        {"<a><!-->", "1: unexpected end"},
        {"<a><?x", "1: unexpected end"},
        {"<?>", "1: unexpected end"},
        {"<? x?><a/>", "1: bad instruction target"},
        {"<?x=y?><a/>", "1: bad instruction target"},
        {"<!ELEMENT a><a/>", "1: unknown markup"},
        {"<a><!x></a>", "1: unknown markup"},
        {"<a><!DOCTYPE b></a>", "1: document type declaration behind the root element"},
        {"<!DOCTYPE a [\n<!ENTITY b '\n", "3: unexpected end"},
        {"<a><![CDATA[\n]]", "2: end of a CDATA section missing"},
        {std::string("<a>\0</a>", 8), "1: NUL byte"},
        {std::string("<a x='\0'/>", 10), "1: NUL byte"},
        {std::string("<a\0/>", 5), "1: NUL byte"},
        {std::string("\0<a/>", 5), "1: NUL byte"},
        {std::string("<!--\0--><a/>", 12), "1: NUL byte"},
        {std::string("<?a \0?><a/>", 11), "1: NUL byte"},
    };
    for (const auto& item : cases)
        for (std::size_t most : {1u, 2u, 1'000'000u})
            EXPECT_EQ(messageOf([&] { tokensOf(item.text, most); }),
                      std::string("XML syntax error in line ") + item.error)
                << item.text << " by " << most;
}

TEST(XmlScanner, NamesAreGuessedFromThoseOfTheTree)
{
    // Each of these is a wrong guess for the other, by its beginning or its end.
    const std::string text =
        "<a><b x='1' y='2'/><b x='1' y='2'/><bb x='1' yy='2'/><b xx='1' y='2'/>"
        "<b x='1'/><b y='2'/><b/><b y='2' x='1'/><bb><b/></bb><b>c</b></a>";
    for (std::size_t most : {1u, 2u, 3u, 7u, 1'000'000u}) {
        const CTreePtr tree = readTree(text, most);
        std::string flat = written(*tree);
        std::erase_if(flat, [](char c) { return c == '\n' || c == '\t'; });
        std::replace(flat.begin(), flat.end(), '"', '\'');
        EXPECT_EQ(flat, text) << most;
    }
}

TEST(XmlScanner, ABadNameIsNeverGuessed)
{
    const struct {
        const char *guess, *text, *tokens;
    } cases[] = {
        {"", "< x/>", "XML syntax error in line 1: bad name"},
        {"b x", "<b x='1'/>", "<b x=1></>"},
        {"b/", "<b/ >", "XML syntax error in line 1: \">\" expected"},
    };
    for (const auto& [guess, text, tokens] : cases) {
        CXMLStore store;
        store.names.InternElement("a");
        store.names.InternElement(guess);
        store.names.TakeElement(store.names.Intern("a"));
        EXPECT_EQ(store.names.GuessElement()->view(), guess);
        std::string seen;
        const std::string message = messageOf([&, text = text] {
            CXMLTextSource source(text);
            CXMLScanner scanner(source, &store.names);
            while (scanner.Next() == EToken::Leaf)
                seen += startOf(scanner) + "</>";
        });
        EXPECT_EQ(seen.empty() ? message : seen, tokens) << guess;
    }
}

TEST(XmlScanner, TokensMayBeLongerThanTheWindow)
{
    const std::string text(300'000, 'x');
    const std::string name(100'000, 'n');
    const std::string document = "<a><" + name + " v='" + text + "'>" + text + "</" + name +
                                 "><!--" + text + "--><?t " + text + "?><![CDATA[" + text +
                                 "]]></a>";
    const std::string expected = "<a><" + name + " v=" + text + ">t(" + text + ")</>c(" + text +
                                 ")i(t|" + text + ")d(" + text + ")</>";
    for (std::size_t most : {1'000u, 1'000'000u})
        EXPECT_TRUE(tokensOf(document, most) == expected);
}

TEST(XmlScanner, MarksMayLieOnTheBorderOfTheWindow)
{
    for (std::size_t shift = 0; shift < 30; ++shift) {
        const std::string bytes(65'520 + shift, 'x');
        EXPECT_TRUE(tokensOf("<a><![CDATA[" + bytes + "]]></a>") == "<a>d(" + bytes + ")</>");
        EXPECT_TRUE(tokensOf("<a><!--" + bytes + "--></a>") == "<a>c(" + bytes + ")</>");
        EXPECT_TRUE(tokensOf("<a>" + bytes + "&lt;<b c='&gt;'/></a>") ==
                    "<a>t(" + bytes + "<)<b c=>></></>");
    }
}

TEST(XmlScanner, NestingHasALimit)
{
    const auto nested = [](std::size_t depth) {
        std::string text;
        for (std::size_t i = 0; i < depth; ++i)
            text += "<a>";
        for (std::size_t i = 0; i < depth; ++i)
            text += "</a>";
        return text;
    };
    EXPECT_EQ(messageOf([&] { tokensOf(nested(10'000)); }), "no exception");
    for (const char* leaf : {"<a>", "<a/>", "<a></a>", "<a>b</a>"})
        EXPECT_EQ(messageOf([&] { tokensOf(nested(10'000).insert(30'000, leaf)); }),
                  "XML syntax error in line 1: elements nested too deeply");
}

TEST(XmlScanner, AStreamThatDeliversTooMuchIsRefused)
{
    struct CLiar final : XIXMLReadStream {
        std::uint32_t Read(void*, std::uint32_t size) override { return size + 1; }
    } liar;
    CXMLScanner scanner(liar);
    EXPECT_THROW(scanner.Next(), std::runtime_error);
}

} // namespace OrvaneXML
