#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace OrvaneXML {
class XIXMLElement;
}

namespace tool {

/// One field that is not the same in two elements.
struct CFieldDifference {
    bool isMoved = false;         ///< the values are the places of an element among its neighbours
    std::string path;             ///< tags with "/" between them, at the end "@" and an attribute
    std::optional<std::string> a; ///< nothing where the field is missing
    std::optional<std::string> b;
};

/// Compares what two objects have written of themselves. Elements below are paired by identifier,
/// by name, or in their order; in the path an element that has neighbours of its tag stands with
/// its name or its number. The environment in a view is passed over: it is an object of the
/// document.
class CElementDiff {
public:
    using CReceiver = std::function<void(const CFieldDifference&)>;
    using CElement = OrvaneXML::XIXMLElement;

    CElementDiff(double tolerance, CReceiver receiver);
    void compare(CElement& a, CElement& b);

private:
    struct CStep {
        CElement* a;
        CElement* b;
        std::size_t above;
        std::string label;
    };

    void compareStep(std::size_t step);
    void compareAttributes(std::size_t step);
    void compareTexts(std::size_t step);
    void compareBelow(std::size_t step);
    void compareValues(std::size_t step, const std::string& place, const char* a, const char* b,
                       bool isText);
    std::string path(std::size_t step) const;

    double mTolerance;
    CReceiver mReceiver;
    // An element may be ten thousand deep, so nothing here calls itself.
    std::vector<CStep> mSteps;
    std::vector<std::size_t> mToDo; // the next one last
};

} // namespace tool
