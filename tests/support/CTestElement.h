#pragma once

#include "xml/tree/CXMLTreeReader.h"
#include "xml/tree/XCXMLTree.h"

#include "tests/support/CStepReadStream.h"
#include "tests/support/CTextWriteStream.h"

#include <memory>
#include <string>

/// A tree for one test, with a document element.
class CTestElement {
public:
    explicit CTestElement(const std::string& xml = "<E/>")
    {
        CStepReadStream stream(xml);
        mTree.reset(OrvaneXML::CXMLTreeReader(nullptr).ReadTree(&stream));
    }

    OrvaneXML::XIXMLElement* element() const { return mTree->GetRoot()->GetFirstElement(); }

    /// The tree as it is written, without line ends and tabs.
    std::string text() const
    {
        CTextWriteStream stream;
        mTree->Write(&stream);
        std::string plain;
        for (const char c : stream.text)
            if (c != '\n' && c != '\t')
                plain += c;
        return plain;
    }

private:
    std::unique_ptr<OrvaneXML::XCXMLTree> mTree;
};
