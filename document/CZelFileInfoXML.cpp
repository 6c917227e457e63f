#include "document/CZelFileInfo.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

#include <string>
#include <utility>
#include <vector>

namespace OvZel {

namespace {

/// Puts the identifier in front of the attributes that a file may have beside it.
void addIdFirst(const CZelXMLAdd& out, const CZelUUID& id)
{
    OrvaneXML::XIXMLElement* element = out.element();
    std::vector<std::pair<std::string, std::string>> others;
    while (OrvaneXML::XIXMLAttribute* attribute = element->GetFirstAttribute()) {
        const OrvaneXML::XCXMLKey key = attribute->GetKey();
        if (key != "UUID")
            others.emplace_back(static_cast<const char*>(key), attribute->GetValue());
        element->RemoveAttribute(key);
    }
    out.AddUUID("UUID", id);
    for (const auto& [name, value] : others)
        out.AddAttribute(name, value.c_str());
}

} // namespace

void CZelFileInfo::addTo(CZelXMLAdd out) const
{
    // The probes read the file up to here and no further: the identifier comes as the first
    // attribute, the origin as the first child.
    OrvaneXML::XIXMLElement* element = out.element();
    addIdFirst(out, *getId());
    out.DestroyElements("Origin");
    OrvaneXML::XIXMLElement* origin =
        out.AddCoord3D("Origin", {mOrigin[0], mOrigin[1], mOrigin[2]});
    element->InsertChild(origin->GetNode(), element->GetFirstNode());
}

void CZelFileInfo::getFrom(const CZelXMLGet& in)
{
    if (in.GetOptionalAttribute("UUID") != nullptr) {
        const CZelUUID id = in.GetUUID("UUID");
        setId(&id);
    }
    const CZelPoint origin = in.GetPoint("Origin", getMgrRef());
    mOrigin[0] = origin.x;
    mOrigin[1] = origin.y;
    mOrigin[2] = origin.z;
}

} // namespace OvZel
