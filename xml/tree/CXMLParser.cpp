#include "xml/tree/CXMLParser.h"

#include "xml/tree/CXMLSectionStream.h"

#include <vector>

namespace OrvaneXML {

bool CXMLParser::Parse(XIXMLReadStream* stream)
{
    return Run(*stream, true);
}

bool CXMLParser::FastParse(XIXMLReadStream* stream)
{
    return Run(*stream, false);
}

bool CXMLParser::ParseHead(XIXMLReadStream* stream)
{
    using EToken = CXMLScanner::EToken;
    CXMLScanner scanner(*stream);
    scanner.StopAtRoot();
    StartDocument();
    for (;;) {
        const EToken token = scanner.Next();
        if (token == EToken::StartTag) {
            StartElement(scanner.Name().data());
            return true;
        }
        if (token == EToken::Comment)
            Comment(scanner.Text().data());
        else if (!Instruction(scanner.Name().data(), scanner.Text().data()))
            return false;
    }
}

void* CXMLParser::Start(const CXMLScanner& scanner)
{
    void* token = StartElement(scanner.Name().data());
    for (std::size_t i = 0; i < scanner.NbAttributes(); ++i)
        Attribute(scanner.AttributeName(i).data(), scanner.AttributeValue(i).data());
    return token;
}

bool CXMLParser::Run(XIXMLReadStream& stream, bool withCData)
{
    using EToken = CXMLScanner::EToken;
    CXMLScanner scanner(stream);
    if (!withCData)
        scanner.TellNoLines();
    std::vector<void*> tokens;
    StartDocument();
    for (;;) {
        switch (scanner.Next()) {
        case EToken::End:
            return true;
        case EToken::Instruction:
            if (!Instruction(scanner.Name().data(), scanner.Text().data()))
                return false;
            break;
        case EToken::Comment:
            Comment(scanner.Text().data());
            break;
        case EToken::StartTag:
            tokens.push_back(Start(scanner));
            break;
        case EToken::Leaf: {
            void* const token = Start(scanner);
            if (!scanner.Text().empty())
                Text(scanner.Text().data());
            EndElement(token);
            break;
        }
        case EToken::Text:
            if (!scanner.IsWhite())
                Text(scanner.Text().data());
            break;
        case EToken::CData:
            if (withCData) {
                CXMLSectionStream section(scanner);
                CData(&section);
            }
            break;
        case EToken::EndTag:
            EndElement(tokens.back());
            tokens.pop_back();
            break;
        }
    }
}

} // namespace OrvaneXML
