#include "tests/conformance/events.h"
#include "tests/support/xmlTree.h"

#include <zel/xml/XIXMLComment.h>

#include <stdexcept>

namespace ZelTest {

namespace {

using namespace OrvaneXML;

constexpr const char* kSectionMark = "<![CDATA[";

/// Puts the bytes of a section into the tree as a text that no document can hold.
class CSectionReader : public IXMLCDataReader {
public:
    bool ReadCData(XIXMLElement* element, XIXMLReadStream* stream) override
    {
        std::string bytes = kSectionMark;
        char piece[4096];
        while (const std::uint32_t nb = stream->Read(piece, sizeof piece))
            bytes.append(piece, nb);
        mSections.push_back(element->AddText(bytes.c_str()));
        return true;
    }

    bool isSection(const XIXMLData* node) const
    {
        return std::find(mSections.begin(), mSections.end(), node) != mSections.end();
    }

private:
    std::vector<const XIXMLData*> mSections;
};

class CTreeWalk {
public:
    CTreeWalk(CEventList& events, const CSectionReader& sections)
        : mEvents(events), mSections(sections)
    {
    }

    void children(XIXMLElement& element)
    {
        for (XIXMLData* node = element.GetFirstNode(); node != nullptr; node = node->GetNextNode())
            one(*node);
    }

private:
    void one(XIXMLData& node)
    {
        if (XIXMLElement* element = node.AsElement())
            this->element(*element);
        else if (XIXMLInstruction* instruction = node.AsInstruction())
            mEvents.instruction(instruction->GetTarget(), instruction->GetContent());
        else if (node.AsComment() != nullptr)
            mEvents.comment(node.GetText());
        else if (mSections.isSection(&node))
            mEvents.section(node.GetText() + std::string(kSectionMark).size());
        else
            mEvents.text(node.GetText());
    }

    void element(XIXMLElement& element)
    {
        mEvents.start(static_cast<const char*>(element.GetKey()));
        for (XIXMLAttribute* each = element.GetFirstAttribute(); each != nullptr;
             each = each->GetNext()) {
            const std::string name = static_cast<const char*>(each->GetKey());
            if (name == "xmlns" || name.compare(0, 6, "xmlns:") == 0)
                mEvents.namespaceAttribute(name, each->GetValue());
            else
                mEvents.attribute(name, each->GetValue());
        }
        children(element);
        mEvents.end();
    }

    CEventList& mEvents;
    const CSectionReader& mSections;
};

} // namespace

CParsed parseWithTree(const std::string& text, std::size_t step)
{
    CParsed parsed;
    CSectionReader sections;
    try {
        const CTreePtr tree = readTree(text, step, &sections);
        CEventList events;
        CTreeWalk(events, sections).children(*tree->GetRoot());
        parsed.events = events.take();
        parsed.isGood = true;
    } catch (const std::runtime_error& error) {
        parsed.message = error.what();
    }
    return parsed;
}

} // namespace ZelTest
