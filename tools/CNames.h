#pragma once

#include "tools/forEach.h"
#include "tools/oneLine.h"

#include <zel/IZelBasicData.h>

#include <map>
#include <string>

namespace tool {

/// The names of the elements of a list by their identifiers. The identifiers that other objects
/// hold are looked up here.
class CNames {
public:
    CNames() = default;
    template <class T>
    explicit CNames(OvZel::TZelObjectMgr<T>& list)
    {
        forEach(list, [&](T& element, std::int32_t) {
            add(*element.getBasicData()->getId(), element.getBasicData()->getName());
        });
    }

    /// The first of several names stays.
    void add(const OvZel::CZelUUID& id, const std::string& name) { mNames.emplace(id, name); }
    bool has(const OvZel::CZelUUID& id) const { return mNames.count(id) > 0; }
    /// True for an identifier that names something which is not there. The null identifier names
    /// nothing.
    bool lacks(const OvZel::CZelUUID& id) const { return !id.isNull() && !has(id); }
    /// The name, for an element without one and for an unknown identifier the identifier, and the
    /// empty text for the null one.
    std::string text(const OvZel::CZelUUID& id) const
    {
        const auto found = mNames.find(id);
        if (found != mNames.end() && !found->second.empty())
            return found->second;
        return id.isNull() ? "" : idText(id);
    }

private:
    std::map<OvZel::CZelUUID, std::string> mNames;
};

} // namespace tool
