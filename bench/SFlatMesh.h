#pragma once

#include <zel/CZelPoint.h>
#include <zel/CZelVertex.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ZelBench {

/// A mesh as a plain program keeps it: 12 bytes for a polygon and 16 for a vertex, in flat arrays.
struct SFlatMesh {
    struct SPolygon {
        std::int32_t material;
        std::uint32_t firstLoop;
        char type; // as in the file
    };

    std::vector<OvZel::CZelPoint> points;
    std::vector<SPolygon> polygons;
    std::vector<std::uint32_t> loops; // the first vertex of each
    std::vector<OvZel::CZelVertex> vertices;
};

// The anchors: blocks of a file by std::from_chars, fast_float and std::to_chars.

/// The numbers by fast_float.
void readPointsFastFloat(std::string_view text, SFlatMesh& mesh);
/// These two by std::from_chars.
void readPoints(std::string_view text, SFlatMesh& mesh);
void readPolygons(std::string_view text, SFlatMesh& mesh);

using CFlush = std::function<void(const char*, std::size_t)>;
void writePoints(const SFlatMesh& mesh, const CFlush& flush);
void writePolygons(const SFlatMesh& mesh, const CFlush& flush);

} // namespace ZelBench
