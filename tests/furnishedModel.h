#pragma once

#include <string>
#include <vector>

class CTempFolder;

/// A model of the Debian package sweethome3d-furniture that stands in a house.
struct CFurniture {
    std::string name; ///< of the node that holds all of it
    std::string archive;
    std::string file;
    float x, y, z;
};

/// What the models need that is not installed, or nothing.
std::string missingModelPackages();

/// Writes a model of the house of the Debian package assimp-testmodels with its own nodes, this
/// furniture, and a camera "Garden", and gives its path. The house comes first, so that its meshes
/// have the same numbers whatever stands in it.
std::string makeFurnishedModel(const CTempFolder& folder, const std::string& name,
                               const std::vector<CFurniture>& pieces);
