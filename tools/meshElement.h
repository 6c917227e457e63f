#pragma once

#include "tools/CListedObject.h"

namespace OvZel {
class IZelImage;
}

namespace tool {

/// Adds what a mesh comes to: its counts.
void addMesh(OrvaneXML::XIXMLElement& element, const CMesh& mesh);
/// Adds size and digest of a picture.
void addPicture(OrvaneXML::XIXMLElement& element, OvZel::IZelImage& image);

/// One place where two meshes are not the same.
struct CMeshDifference {
    std::string path;
    std::string a;
    std::string b;
};

/// The corners of the bounds that differ, and of points and polygons the first that does. Numbers
/// may differ by the tolerance as a share of the size of the mesh.
std::vector<CMeshDifference> meshDifferences(const CMesh& a, const CMesh& b, double tolerance);

} // namespace tool
