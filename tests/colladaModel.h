#pragma once

#include <string>
#include <vector>

/// Small models as COLLADA text: three meshes and two cameras, placed by nodes.

using CMatrix = std::vector<double>; ///< four rows of four

CMatrix operator*(const CMatrix& a, const CMatrix& b);
CMatrix moved(double x, double y, double z);
CMatrix scaled(double x, double y, double z);
CMatrix turnedX(double angle);
CMatrix turnedY(double angle);
CMatrix turnedZ(double angle);

/// A node with one of the meshes "tri", a triangle with mapping numbers, "sq", a square, and "big",
/// a triangle of twenty kilometres. The materials are "red", named "Red paint", with a texture, and
/// "steel", named "Steel", which is partly clear.
struct CNode {
    std::string name;
    std::string mesh;
    std::string material;
    CMatrix matrix;
};

/// A node with one of the cameras "wide", which sees 60 degrees from side to side, and "tall", 40
/// degrees from top to bottom and twice as wide as high. It stands in a node of its own.
struct CCameraNode {
    std::string name;
    std::string camera;
    CMatrix outer; ///< of the node in which it stands
    CMatrix matrix;
};

/// The nodes below a root "Scene".
std::string collada(const std::vector<CNode>& nodes, const std::vector<CCameraNode>& cameras = {});
