#pragma once

#include "tests/support/xmlTree.h"

#include <string>

namespace ZelTest {

/// A tree for one test, with a document element.
class CTestElement {
public:
    explicit CTestElement(const std::string& xml = "<E/>") : mTree(readTree(xml)) {}

    OrvaneXML::XIXMLElement* element() const { return mTree->GetRoot()->GetFirstElement(); }

    /// The tree as it is written, without line ends and tabs.
    std::string text() const
    {
        std::string plain = written(*mTree);
        std::erase_if(plain, [](char c) { return c == '\n' || c == '\t'; });
        return plain;
    }

private:
    CTreePtr mTree;
};

} // namespace ZelTest
