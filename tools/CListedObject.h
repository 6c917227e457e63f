#pragma once

#include <zel/CZelPoint.h>
#include <zel/IZelPolygon.h>
#include <zel/TZelObjectMgr.h>

#include <functional>
#include <string>
#include <vector>

namespace OrvaneXML {
class XIXMLElement;
}

namespace OvZel {
class IZelMgr;
}

namespace tool {

struct CMesh {
    OvZel::TZelObjectMgr<OvZel::CZelPoint>* points = nullptr;
    OvZel::TZelObjectMgr<OvZel::IZelPolygon>* polygons = nullptr;
};

/// An object of a document, whatever its class: what it is known by, and how it writes itself.
struct CListedObject {
    /// Adds an element to the given one and fills it; null if that can't be done.
    using CWriter = std::function<OrvaneXML::XIXMLElement*(OrvaneXML::XIXMLElement&)>;

    std::string id;
    std::string name;
    CWriter write;
    CMesh mesh = {}; ///< nulls for an object without one
};

struct CObjectList {
    std::string name;
    std::vector<CListedObject> objects;
};

/// Everything in a document that a save keeps, as lists under the names that `zel show` has for
/// them. What the document has once is a list of one. The objects are those of the document, and
/// good as long as it stays as it is.
std::vector<CObjectList> objectLists(OvZel::IZelMgr& document);

} // namespace tool
