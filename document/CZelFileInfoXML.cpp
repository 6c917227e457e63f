#include "document/CZelFileInfo.h"

#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"

namespace OvZel {

void CZelFileInfo::addTo(CZelXMLAdd out) const
{
    // The probes read the file up to here and no further: the identifier comes as the first
    // attribute, the origin as the first child.
    OrvaneXML::XIXMLElement* element = out.element();
    out.AddUUID("UUID", *getId());
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
