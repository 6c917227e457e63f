#include "bench/SFlatMesh.h"

#include <charconv>

namespace ZelBench {

namespace {

class CPrinter {
public:
    explicit CPrinter(const CFlush& flush) : mFlush(flush) {}
    CPrinter(const CPrinter&) = delete;
    CPrinter& operator=(const CPrinter&) = delete;
    ~CPrinter() { mFlush(mBuffer, static_cast<std::size_t>(mOut - mBuffer)); }

    template <class T>
    void integer(T value)
    {
        room();
        mOut = std::to_chars(mOut, mBuffer + sizeof mBuffer, value).ptr;
        *mOut++ = ' ';
    }
    void number(double value)
    {
        room();
        mOut =
            std::to_chars(mOut, mBuffer + sizeof mBuffer, value, std::chars_format::fixed, 6).ptr;
        *mOut++ = ' ';
    }
    void letter(char letter, char behind)
    {
        room();
        *mOut++ = letter;
        *mOut++ = behind;
    }
    void line()
    {
        room();
        *mOut++ = '\n';
    }

private:
    static constexpr std::ptrdiff_t kRoom = 350; // the longest double

    void room()
    {
        if (mBuffer + sizeof mBuffer - mOut >= kRoom)
            return;
        mFlush(mBuffer, static_cast<std::size_t>(mOut - mBuffer));
        mOut = mBuffer;
    }

    const CFlush& mFlush;
    char mBuffer[64 * 1024];
    char* mOut = mBuffer;
};

std::size_t endOfLoop(const SFlatMesh& mesh, std::size_t loop)
{
    return loop + 1 < mesh.loops.size() ? mesh.loops[loop + 1] : mesh.vertices.size();
}

void writeLoop(const SFlatMesh& mesh, std::size_t loop, CPrinter& out)
{
    const std::size_t end = endOfLoop(mesh, loop);
    out.integer(end - mesh.loops[loop]);
    for (std::size_t i = mesh.loops[loop]; i < end; ++i) {
        const OvZel::CZelVertex& vertex = mesh.vertices[i];
        if (vertex.flags & OvZel::CZelVertex::kFlagI)
            out.letter('I', ' ');
        if (vertex.flags & OvZel::CZelVertex::kFlagM) {
            out.letter('M', ' ');
            out.number(static_cast<double>(vertex.u));
            out.number(static_cast<double>(vertex.v));
        }
        out.integer(vertex.pointIndex);
    }
}

} // namespace

void writePoints(const SFlatMesh& mesh, const CFlush& flush)
{
    CPrinter out(flush);
    out.line();
    out.integer(mesh.points.size());
    for (const OvZel::CZelPoint& point : mesh.points) {
        out.line();
        out.number(point.x);
        out.number(point.y);
        out.number(point.z);
    }
    out.line();
}

void writePolygons(const SFlatMesh& mesh, const CFlush& flush)
{
    CPrinter out(flush);
    out.line();
    out.integer(mesh.polygons.size());
    out.line();
    for (std::size_t i = 0; i < mesh.polygons.size(); ++i) {
        const SFlatMesh::SPolygon& polygon = mesh.polygons[i];
        const bool isLast = i + 1 == mesh.polygons.size();
        const std::size_t end = isLast ? mesh.loops.size() : mesh.polygons[i + 1].firstLoop;
        out.letter(polygon.type, '\t');
        out.integer(polygon.material);
        if (polygon.type == 'h')
            out.integer(end - polygon.firstLoop);
        for (std::size_t loop = polygon.firstLoop; loop < end; ++loop)
            writeLoop(mesh, loop, out);
        out.line();
    }
}

} // namespace ZelBench
