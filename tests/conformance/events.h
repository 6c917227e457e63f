#pragma once

#include <string>
#include <vector>

// What a parser finds in a document, in a form that can be compared: one line for each start and
// end of an element, attribute, text, section, comment and instruction.
//
// Declarations of namespaces stand ahead of the other attributes, texts that touch are one, and
// white space alone is left out in elements that have child elements. The XML declaration and the
// document type declaration are no events.

namespace ZelTest {

using CEvents = std::vector<std::string>;

struct CParsed {
    bool isGood = false;
    std::string message; ///< of a document that isn't
    /// Whether a reference to an entity was met that is not one of the five predefined ones.
    bool hasEntities = false;
    CEvents events;
};

/// Gathers events.
class CEventList {
public:
    void start(const std::string& name);
    void namespaceAttribute(const std::string& name, const std::string& value);
    void attribute(const std::string& name, const std::string& value);
    void text(const std::string& content);
    void section(const std::string& content);
    void comment(const std::string& content);
    void instruction(const std::string& target, const std::string& content);
    void end();
    CEvents take();

private:
    void flushText();
    void add(const std::string& line) { mEvents.push_back(line); }

    struct COpen {
        std::string name;
        bool hasElements = false;
        std::vector<std::size_t> white; ///< texts of white space in it
    };

    CEvents mEvents;
    std::vector<COpen> mOpen;
    std::string mText;
    std::size_t mNbNamespaces = 0; ///< behind the last start
    std::size_t mLastStart = 0;
};

/// As the trees of the library have it, read in pieces of so many bytes.
CParsed parseWithTree(const std::string& text, std::size_t step);
/// As libxml2 has it, without what is outside of the document.
CParsed parseWithLibxml(const std::string& text);

} // namespace ZelTest
