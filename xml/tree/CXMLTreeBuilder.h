#pragma once

#include "xml/tree/CXMLElement.h"
#include "xml/tree/CXMLScanner.h"
#include "xml/tree/IXMLCDataReader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace OrvaneXML {

class CXMLCDataNode;
class CXMLSectionStream;

/// One reading of a document into the root of an empty tree.
class CXMLTreeBuilder {
public:
    CXMLTreeBuilder(CXMLElement& root, IXMLCDataReader* reader, XIXMLReadStream& stream)
        : mScanner(stream, &root.Store().names), mReader(reader), mCurrent(&root)
    {
    }

    void Run();

private:
    struct SOpen {
        std::size_t nbWhite; // of the elements around
        bool hasElements = false;
        CXMLCDataNode* section = nullptr; // the first one
    };

    CXMLElement& AddElement();
    void Start();
    void Leaf();
    void End();
    void AddText();
    void TakeTextBack();
    void FlushText(CXMLNode* before);
    void DropWhite();
    void Section();
    bool Offer(CXMLSectionStream& stream);
    void NoteSection(CXMLNode* node);
    void KeepSection();

    CXMLScanner mScanner;
    IXMLCDataReader* mReader;
    CXMLElement* mCurrent;
    std::vector<SOpen> mOpen; // one for each open element

    // A text is complete only when a node follows it, since skipped sections leave no gap.
    std::string mText;
    bool mIsWhite = true;
    bool mIsStored = false; // the text went into its element at once and nothing followed so far
    std::vector<CXMLNode*>
        mWhite; // nodes that go if their element turns out to have child elements
};

} // namespace OrvaneXML
