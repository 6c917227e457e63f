#include "bench/SFlatMesh.h"

#include <charconv>
#include <fast_float/fast_float.h>
#include <stdexcept>

using OvZel::CZelPoint;
using OvZel::CZelVertex;

namespace ZelBench {

namespace {

struct SFastFloat {
    static const char* number(const char* in, const char* end, double& value)
    {
        return fast_float::from_chars(in, end, value).ptr;
    }
};

struct SStandard {
    static const char* number(const char* in, const char* end, double& value)
    {
        return std::from_chars(in, end, value).ptr;
    }
};

template <class Numbers>
class CScan {
public:
    explicit CScan(std::string_view text) : mIn(text.data()), mEnd(text.data() + text.size()) {}

    char next()
    {
        while (mIn != mEnd && (*mIn == ' ' || *mIn == '\n' || *mIn == '\t'))
            ++mIn;
        if (mIn == mEnd)
            throw std::runtime_error("A block ends too early");
        return *mIn;
    }
    char letter()
    {
        const char found = next();
        ++mIn;
        return found;
    }
    std::int32_t integer()
    {
        next();
        std::int32_t value = 0;
        mIn = std::from_chars(mIn, mEnd, value).ptr;
        return value;
    }
    double number()
    {
        next();
        double value = 0.0;
        mIn = Numbers::number(mIn, mEnd, value);
        return value;
    }

private:
    const char* mIn;
    const char* mEnd;
};

template <class Numbers>
void scanPoints(std::string_view text, SFlatMesh& mesh)
{
    CScan<Numbers> scan(text);
    const auto count = static_cast<std::size_t>(scan.integer());
    mesh.points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        CZelPoint& point = mesh.points.emplace_back();
        point.x = scan.number();
        point.y = scan.number();
        point.z = scan.number();
    }
}

CZelVertex scanVertex(CScan<SStandard>& scan)
{
    CZelVertex vertex;
    char first = scan.next();
    if (first == 'I') {
        scan.letter();
        vertex.flags |= CZelVertex::kFlagI;
        first = scan.next();
    }
    if (first == 'M') {
        scan.letter();
        vertex.flags |= CZelVertex::kFlagM;
        vertex.u = static_cast<float>(scan.number());
        vertex.v = static_cast<float>(scan.number());
    }
    vertex.pointIndex = scan.integer();
    return vertex;
}

} // namespace

void readPointsFastFloat(std::string_view text, SFlatMesh& mesh)
{
    scanPoints<SFastFloat>(text, mesh);
}

void readPoints(std::string_view text, SFlatMesh& mesh)
{
    scanPoints<SStandard>(text, mesh);
}

void readPolygons(std::string_view text, SFlatMesh& mesh)
{
    CScan<SStandard> scan(text);
    const auto count = static_cast<std::size_t>(scan.integer());
    mesh.polygons.reserve(count);
    mesh.vertices.reserve(count * 4);
    mesh.loops.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const char type = scan.letter();
        const std::int32_t material = scan.integer();
        mesh.polygons.push_back({material, static_cast<std::uint32_t>(mesh.loops.size()), type});
        const std::int32_t nbLoops = type == 'h' ? scan.integer() : 1;
        for (std::int32_t loop = 0; loop < nbLoops; ++loop) {
            mesh.loops.push_back(static_cast<std::uint32_t>(mesh.vertices.size()));
            for (std::int32_t nbLeft = scan.integer(); nbLeft > 0; --nbLeft)
                mesh.vertices.push_back(scanVertex(scan));
        }
    }
}

} // namespace ZelBench
