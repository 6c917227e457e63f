#include "objects/CPackedElement.h"

#include "xml/tree/CXMLElement.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

using OrvaneXML::CXMLElement;
using OrvaneXML::CXMLNode;
using OrvaneXML::SXMLName;
using OrvaneXML::XIXMLElement;

namespace OvZel {

namespace {

constexpr char kElement = 'E';
constexpr char kKnownElement = 'K';
constexpr char kAttribute = 'a';
constexpr char kKnownAttribute = 'k';
constexpr char kText = 't';
constexpr char kComment = 'c';
constexpr char kInstruction = 'i';
constexpr char kEnd = 'z';

/// Names that scenes repeat, in the order of the files; each takes one byte in place of its text.
constexpr std::string_view kKnownNames[] = {
    "Instance.Data",
    "Component.UUID",
    "Current.Overload",
    "External.Definition.Id",
    "Render.Type",
    "Kind",
    "Color",
    "Properties",
    "Lights",
    "Orient.With.Camera",
    "Vertical.Flip",
    "Horizontal.Flip",
    "Shininess",
    "Roughness",
    "Brightness",
    "Contrast",
    "Definition.Size",
    "Definition.Name",
    "Current.Config",
    "Current.Frame",
    "Current.Take",
    "Real.Duration",
    "Start.Frame",
    "Overloaded.Properties",
    "Heliodon.Attached",
    "Time",
    "Month",
    "Day",
    "Hour",
    "Minute",
    "Year",
    "Url",
    "URL",
};
constexpr std::size_t kNbKnown = std::size(kKnownNames);
static_assert(kNbKnown < 128);

class CPacker {
public:
    CPacker() { mBytes.reserve(250); } // more than most elements need

    /// False if the node cannot be packed. An element stays open.
    bool put(CXMLNode& node)
    {
        switch (node.Kind()) {
        case CXMLNode::EKind::Element:
            openElement(static_cast<const CXMLElement&>(node));
            return true;
        case CXMLNode::EKind::Text:
            putTexts(kText, {node.GetText()});
            return true;
        case CXMLNode::EKind::Comment:
            putTexts(kComment, {node.GetText()});
            return true;
        case CXMLNode::EKind::Instruction:
            putTexts(kInstruction,
                     {node.AsInstruction()->GetTarget(), node.AsInstruction()->GetContent()});
            return true;
        case CXMLNode::EKind::CData:
            break;
        }
        return false;
    }
    void close() { mBytes += kEnd; }
    std::string_view bytes() const { return mBytes; }

private:
    void openElement(const CXMLElement& element)
    {
        putName(kElement, kKnownElement, element.Name()->view());
        element.Attributes().ForEach([this](const SXMLName* name, const char* value) {
            putName(kAttribute, kKnownAttribute, name->view());
            mBytes.append(value).push_back('\0');
        });
        if (const char* text = element.LoneText())
            putTexts(kText, {text});
    }
    void putName(char letter, char knownLetter, std::string_view name)
    {
        // Files repeat themselves, so that most often the search ends where it begins.
        for (std::size_t i = 0; i < kNbKnown; ++i) {
            const std::size_t known = (mNextKnown + i) % kNbKnown;
            if (kKnownNames[known] == name) {
                mBytes += {knownLetter, static_cast<char>(known)};
                mNextKnown = known + 1;
                return;
            }
        }
        mBytes += letter;
        mBytes.append(name).push_back('\0');
    }
    void putTexts(char letter, std::initializer_list<const char*> texts)
    {
        mBytes += letter;
        for (const char* text : texts)
            mBytes.append(text).push_back('\0');
    }

    std::string mBytes;
    std::size_t mNextKnown = 0;
};

/// The first child of an element, null for anything else.
CXMLNode* firstBelow(const CXMLNode& node)
{
    return node.Kind() == CXMLNode::EKind::Element
               ? static_cast<const CXMLElement&>(node).FirstNode()
               : nullptr;
}

bool packAll(CPacker& packer, CXMLNode& top)
{
    for (CXMLNode* node = &top;;) {
        if (!packer.put(*node))
            return false;
        if (CXMLNode* below = firstBelow(*node)) {
            node = below;
            continue;
        }
        if (node->Kind() == CXMLNode::EKind::Element)
            packer.close();
        while (node != &top && node->Next() == nullptr) {
            node = node->ParentElement();
            packer.close();
        }
        if (node == &top)
            return true;
        node = node->Next();
    }
}

const char* nextText(const char*& place)
{
    const char* text = place;
    place += std::char_traits<char>::length(place) + 1;
    return text;
}

std::string_view nextName(bool isKnown, const char*& place)
{
    return isKnown ? kKnownNames[static_cast<std::size_t>(*place++)] : nextText(place);
}

bool isAttribute(char letter)
{
    return letter == kAttribute || letter == kKnownAttribute;
}

/// Calls use(name, value) for each attribute that follows, and returns what stands behind them.
template <class TUse>
const char* forEachAttribute(const char* place, TUse use)
{
    while (isAttribute(*place)) {
        const bool isKnown = *place++ == kKnownAttribute;
        const std::string_view name = nextName(isKnown, place);
        use(name, nextText(place));
    }
    return place;
}

const char* unpackAttributes(CXMLElement& element, const char* first)
{
    std::size_t nb = 0;
    const char* behind = forEachAttribute(first, [&nb](std::string_view, const char*) { ++nb; });
    element.FillAttributes(nb, [&element, first](auto use) {
        forEachAttribute(first, [&](std::string_view name, const char* value) {
            use(element.Store().names.Intern(name), value);
        });
    });
    return behind;
}

} // namespace

bool CPackedElement::pack(const XIXMLElement& element)
{
    CPacker packer;
    // The nodes have no constant view.
    if (!packAll(packer, const_cast<CXMLElement&>(static_cast<const CXMLElement&>(element))))
        return false;
    const std::string_view bytes = packer.bytes();
    std::unique_ptr<char[]> exact(new char[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    mBytes = std::move(exact);
    return true;
}

XIXMLElement* CPackedElement::unpackInto(XIXMLElement& parent) const
{
    const char* place = mBytes.get();
    auto* const outside = &static_cast<CXMLElement&>(parent);
    CXMLElement* top = nullptr;
    CXMLElement* open = outside;
    do {
        const char letter = *place++;
        switch (letter) {
        case kElement:
        case kKnownElement:
            open = open->AppendElement(nextName(letter == kKnownElement, place));
            top = top == nullptr ? open : top;
            break;
        case kAttribute:
        case kKnownAttribute:
            place = unpackAttributes(*open, place - 1);
            break;
        case kText: {
            const char* text = nextText(place);
            if (*text != '\0' && open->IsEmpty())
                open->SetLoneText(text);
            else
                open->AddText(text);
            break;
        }
        case kComment:
            open->AddComment(nextText(place));
            break;
        case kInstruction: {
            const char* target = nextText(place);
            open->AddInstruction(target, nextText(place));
            break;
        }
        default: // kEnd
            open = open->ParentElement();
            break;
        }
    } while (open != outside);
    return top;
}

} // namespace OvZel
