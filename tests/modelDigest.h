#pragma once

#include <map>
#include <string>

/// What a model file has of one material, however it is split into meshes and nodes.
struct CMaterialDigest {
    std::size_t nbFaces = 0;
    double area = 0.0;
    double low[3] = {1e9, 1e9, 1e9};
    double high[3] = {-1e9, -1e9, -1e9};
    std::string texture;
    std::string bump;
    double diffuse[3] = {};
    double opacity = 1.0;
};

/// Of the materials that a polygon has, by name, as the importer reads the file and its nodes place
/// the meshes. Empty when the file can't be read.
std::map<std::string, CMaterialDigest> modelDigest(const std::string& path);

/// Fails the test where the two differ by more than six decimals of places and eight bits of
/// colours can tell.
void expectSameModel(const std::string& path, const std::string& source);
