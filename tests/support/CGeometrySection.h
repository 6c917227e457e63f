#pragma once

#include "tests/support/CTestBlockHost.h"
#include "tests/support/CXMLTextTarget.h"
#include "xml/tree/XCXMLTree.h"

#include <string>

namespace ZelTest {

/// An element with a geometry section below an element that may have an identifier, and what the
/// section's provider writes.
template <class Provider>
class CGeometrySection {
public:
    using CProvider = OrvaneXML::XIXMLData::IXMLCData;

    explicit CGeometrySection(const char* name, const char* id = nullptr,
                              std::size_t limit = std::string::npos)
        : mStream(limit)
    {
        OrvaneXML::XIXMLElement* owner = add(tree.GetRoot(), "Owner");
        if (id != nullptr)
            owner->AddAttribute(owner->MakeKey("UUID"), id);
        OrvaneXML::XIXMLElement* element = add(owner, name);
        mProvider = new Provider(&host);
        element->SetCData(mProvider);
        mNode = element->GetFirstNode();
    }

    bool write() { return write(mProvider); }
    bool write(CProvider* provider) { return provider->Write(&mStream, nullptr, mNode); }
    const std::string& text() const { return mStream.text; }

    CTestBlockHost host;
    OrvaneXML::XCXMLTree tree;

private:
    static OrvaneXML::XIXMLElement* add(OrvaneXML::XIXMLElement* parent, const char* name)
    {
        return parent->AddElement(parent->MakeKey(name));
    }

    CXMLTextTarget mStream;
    CProvider* mProvider;
    OrvaneXML::XIXMLData* mNode;
};

} // namespace ZelTest
