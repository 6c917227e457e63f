#pragma once

#include "bench/SFlatMesh.h"

#include <cstddef>
#include <string>

namespace ZelBench {

/// A terrain of a million quads with six decimals, a third of the vertices mapped.
SFlatMesh terrain();
/// Quads with two triangular holes each.
SFlatMesh perforated();

/// The number of quads of the terrain, and of elements without geometry.
std::size_t nbQuads();
std::size_t nbElements();

/// A file with these sections and what every file must have.
std::string zelFile(const std::string& sections);
std::string pointsSection(const SFlatMesh& mesh);
std::string polygonsSection(const SFlatMesh& mesh);
/// The text of the section in a file.
std::string_view sectionText(const std::string& file, const std::string& element);
/// A million elements without geometry, 69 MB.
std::string elementsFile();
/// The path of a file with the whole terrain.
std::string terrainFile();

} // namespace ZelBench
