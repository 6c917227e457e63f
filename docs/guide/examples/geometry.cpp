// Saves and loads a mesh that never stands in the document: the client keeps it in vectors.

#include "examples/shared/CDocument.h"

#include <array>
#include <cstdio>
#include <vector>

using namespace OvZel;
using namespace example;

struct CMesh {
    std::vector<CZelPoint> points;
    std::vector<std::array<std::int32_t, 3>> triangles;
};

/// Hands the mesh out, for as many blocks as the document has.
class CMeshWriter : public IZelExtStorageWriter {
public:
    explicit CMeshWriter(const CMesh& mesh) : mMesh(mesh) {}

    IWriter* createGeometryWriter(const CZelUUID*) override { return new CBlock(mMesh); }

private:
    struct CBlock : IWriter {
        explicit CBlock(const CMesh& mesh) : mMesh(mesh) {}

        std::int32_t getNbPoints() override { return std::int32_t(mMesh.points.size()); }
        bool getPoint(CZelPoint* point, std::int32_t index) override
        {
            *point = mMesh.points[std::size_t(index)];
            return true;
        }
        std::int32_t getNbPolygons() override { return std::int32_t(mMesh.triangles.size()); }
        bool getPolygon(IZelPolygon* polygon, std::int32_t index) override
        {
            polygon->getVertices()->removeAllObjects(); // it is the one of the call before
            for (std::int32_t corner : mMesh.triangles[std::size_t(index)])
                polygon->getVertices()->newZelObject(-1)->pointIndex = corner;
            return true;
        }

        const CMesh& mMesh;
    };

    const CMesh& mMesh;
};

/// Takes the mesh in. The numbers of setNb are claims of the file: nothing is reserved by them.
class CMeshReader : public IZelExtStorageReader {
public:
    CMesh mesh;

    IReader* createGeometryReader(const CZelUUID*, bool) override { return new CBlock(mesh); }

private:
    struct CBlock : IReader {
        explicit CBlock(CMesh& mesh) : mMesh(mesh) {}

        void setNbPoints(std::int32_t) override {}
        bool setPoint(const CZelPoint* point, std::int32_t) override
        {
            mMesh.points.push_back(*point);
            return true;
        }
        void setNbPolygons(std::int32_t) override {}
        bool setPolygon(IZelPolygon* polygon, std::int32_t) override
        {
            TZelObjectMgr<CZelVertex>* corners = polygon->getVertices();
            if (corners->getNbObjects() != 3)
                return false; // fails the block
            mMesh.triangles.push_back({corners->getZelObject(0)->pointIndex,
                                       corners->getZelObject(1)->pointIndex,
                                       corners->getZelObject(2)->pointIndex});
            return true;
        }

        CMesh& mMesh;
    };
};

int main(int argc, char** argv)
{
    const std::string path = std::string(argc > 1 ? argv[1] : ".") + "/geometry.zel";
    const CMesh mesh{{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {{0, 1, 2}, {0, 2, 3}}};
    CMeshWriter writer(mesh);
    CDocument document;
    CFileWriter out(path.c_str());
    if (!document->write(&out, &writer) || !out.close())
        return 1;

    CMeshReader reader;
    CDocument loaded;
    CFileReader in(path.c_str());
    if (!loaded->read(&in, &reader))
        return 1;
    std::printf("%zu points and %zu triangles, %d of them in the document\n",
                reader.mesh.points.size(), reader.mesh.triangles.size(),
                loaded->getPolygons()->getNbObjects());
    return reader.mesh.triangles == mesh.triangles && reader.mesh.points.size() == 4 ? 0 : 1;
}
