#include "tools/CElementDiff.h"

#include "tools/pairUp.h"
#include "tools/sameValue.h"

#include <zel/xml/XIXMLElement.h>

#include <map>
#include <utility>

namespace tool {

using OrvaneXML::XIXMLAttribute;
using OrvaneXML::XIXMLData;
using OrvaneXML::XIXMLElement;

static constexpr std::size_t kTop = CPartners::kNone;

static std::string attribute(const XIXMLElement& element, const char* key)
{
    for (const XIXMLAttribute* each = element.GetFirstAttribute(); each; each = each->GetNext())
        if (each->GetKey() == key)
            return each->GetValue();
    return "";
}

static std::string idOf(const XIXMLElement& element)
{
    for (const char* key : {"UUID", "Id", "ID"})
        if (const std::string id = attribute(element, key); !id.empty())
            return id.find_first_not_of('0') == std::string::npos ? "" : id;
    return "";
}

static std::string nameOf(const XIXMLElement& element)
{
    for (const XIXMLElement* each = element.GetFirstElement(); each; each = each->GetNextElement())
        if (each->GetKey() == "Name")
            return each->GetFirstAttribute() ? each->GetFirstAttribute()->GetValue()
                                             : each->GetNode()->GetText();
    return "";
}

static bool isCompared(const XIXMLElement& above, const XIXMLElement& element)
{
    return above.GetKey() != "View.Info" || element.GetKey() != "Environment";
}

namespace {

// The elements below another one.
struct CBelow {
    explicit CBelow(const XIXMLElement& above)
    {
        for (XIXMLElement* each = above.GetFirstElement(); each; each = each->GetNextElement()) {
            if (!isCompared(above, *each))
                continue;
            elements.push_back(each);
            identities.push_back(
                {static_cast<const char*>(each->GetKey()), idOf(*each), nameOf(*each)});
            numbers.push_back(counts[identities.back().kind]++);
        }
    }

    std::string label(std::size_t i, bool hasNeighbours) const
    {
        const CIdentity& identity = identities[i];
        if (!hasNeighbours)
            return identity.kind;
        return identity.kind + "[" +
               (identity.name.empty() ? "#" + std::to_string(numbers[i]) : identity.name) + "]";
    }
    bool hasSeveral(const std::string& kind) const
    {
        const auto found = counts.find(kind);
        return found != counts.end() && found->second > 1;
    }

    std::vector<XIXMLElement*> elements;
    std::vector<CIdentity> identities;
    std::vector<int> numbers; // among those of one tag
    std::map<std::string, int> counts;
};

} // namespace

CElementDiff::CElementDiff(double tolerance, CReceiver receiver)
    : mTolerance(tolerance), mReceiver(std::move(receiver))
{
}

void CElementDiff::compare(XIXMLElement& a, XIXMLElement& b)
{
    mSteps.assign(1, {&a, &b, kTop, ""});
    mToDo.assign(1, 0);
    while (!mToDo.empty()) {
        const std::size_t step = mToDo.back();
        mToDo.pop_back();
        compareStep(step);
    }
}

void CElementDiff::compareStep(std::size_t step)
{
    compareAttributes(step);
    compareTexts(step);
    compareBelow(step);
}

std::string CElementDiff::path(std::size_t step) const
{
    std::vector<const std::string*> labels;
    for (; mSteps[step].above != kTop; step = mSteps[step].above)
        labels.push_back(&mSteps[step].label);
    std::string text;
    for (auto label = labels.rbegin(); label != labels.rend(); ++label)
        text += (text.empty() ? "" : "/") + **label;
    return text;
}

static std::optional<std::string> textOrNone(const char* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

void CElementDiff::compareValues(std::size_t step, const std::string& place, const char* a,
                                 const char* b, bool isText)
{
    if (a && b && (isText ? std::string(a) == b : isSameValue(a, b, mTolerance)))
        return;
    const std::string above = path(step);
    const std::string whole = above + (above.empty() || place.empty() ? "" : "/") + place;
    mReceiver({false, whole, textOrNone(a), textOrNone(b)});
}

// A text in a language has the language as its key.
static bool isLanguage(const std::string& key)
{
    return key.size() == 2 && key[0] >= 'a' && key[0] <= 'z' && key[1] >= 'a' && key[1] <= 'z';
}

void CElementDiff::compareAttributes(std::size_t step)
{
    std::map<std::string, std::pair<const char*, const char*>> values;
    const auto [a, b] = std::pair(mSteps[step].a, mSteps[step].b);
    for (const XIXMLAttribute* each = a->GetFirstAttribute(); each; each = each->GetNext())
        values.try_emplace(std::string(each->GetKey()), each->GetValue(), nullptr);
    for (const XIXMLAttribute* each = b->GetFirstAttribute(); each; each = each->GetNext())
        if (const char*& value = values[std::string(each->GetKey())].second; !value)
            value = each->GetValue();
    for (const auto& [key, value] : values)
        compareValues(step, "@" + key, value.first, value.second, isLanguage(key));
}

static std::string ownText(const XIXMLElement& element)
{
    std::string text;
    for (XIXMLData* each = element.GetFirstNode(); each; each = each->GetNextNode())
        if (!each->AsElement() && !each->AsComment() && !each->AsInstruction())
            text += each->GetText();
    return text.find_first_not_of(" \t\r\n") == std::string::npos ? "" : text;
}

void CElementDiff::compareTexts(std::size_t step)
{
    const std::string a = ownText(*mSteps[step].a);
    const std::string b = ownText(*mSteps[step].b);
    compareValues(step, "", a.c_str(), b.c_str(), mSteps[step].a->GetKey() == "Name");
}

// What is told of an element that the other side lacks.
static std::string summary(const XIXMLElement& element)
{
    const std::string name = nameOf(element);
    const std::string text = name.empty() ? ownText(element) : name;
    return text.empty() ? attribute(element, "Type") : text;
}

void CElementDiff::compareBelow(std::size_t step)
{
    const CBelow a(*mSteps[step].a);
    const CBelow b(*mSteps[step].b);
    const std::size_t nbSteps = mSteps.size();
    const auto tell = [&](bool isMoved, const std::string& label, std::optional<std::string> first,
                          std::optional<std::string> second) {
        const std::string above = path(step);
        mReceiver({isMoved, above + (above.empty() ? "" : "/") + label, std::move(first),
                   std::move(second)});
    };
    for (const CPartners& each : pairUp(a.identities, b.identities, false)) {
        const CBelow& side = each.a == CPartners::kNone ? b : a;
        const std::size_t place = &side == &a ? each.a : each.b;
        const std::string& kind = side.identities[place].kind;
        const std::string label = side.label(place, a.hasSeveral(kind) || b.hasSeveral(kind));
        if (each.a == CPartners::kNone)
            tell(false, label, std::nullopt, summary(*b.elements[each.b]));
        else if (each.b == CPartners::kNone)
            tell(false, label, summary(*a.elements[each.a]), std::nullopt);
        else {
            if (each.isMoved)
                tell(true, label, std::to_string(each.a), std::to_string(each.b));
            mSteps.push_back({a.elements[each.a], b.elements[each.b], step, label});
        }
    }
    for (std::size_t i = mSteps.size(); i > nbSteps; --i)
        mToDo.push_back(i - 1);
}

} // namespace tool
