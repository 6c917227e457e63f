#include "document/CZelFileInfo.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/tree/CXMLElement.h"

#include <cstddef>

namespace OvZel {

using OrvaneXML::SXMLName;

namespace {

/// Puts the identifier in front of the attributes that a file may have beside it.
void addIdFirst(const CZelXMLAdd& out, const CZelUUID& id)
{
    out.AddUUID("UUID", id);
    auto& element = static_cast<OrvaneXML::CXMLElement&>(*out.element());
    const SXMLName* const name = element.NameOf("UUID");
    const char* const text = element.Attributes().ValueOf(name);
    std::size_t nb = 1;
    element.Attributes().ForEach([&](const SXMLName* each, const char*) { nb += each != name; });
    element.ReplaceAttributes(nb, [&](auto use) {
        use(name, text);
        element.Attributes().ForEach([&](const SXMLName* each, const char* value) {
            if (each != name)
                use(each, value);
        });
    });
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
