// furnished_house HOUSE PIECES FOLDER OUT: puts furniture into a house, saves it, loads it again
// and compares. "furnish" makes the documents of house and furniture first.

#include "examples/furnished_house/CFurnisher.h"
#include "examples/furnished_house/describe.h"
#include "examples/shared/CDocument.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>

using namespace example;

// A line a piece: room, model, place (x y z), angle, size (width depth height); "#" is a comment.
static bool parse(const std::string& line, CPiece& piece)
{
    std::istringstream words(line);
    if (!(words >> piece.room) || piece.room[0] == '#')
        return false;
    words >> piece.model >> piece.place.x >> piece.place.y >> piece.place.z >> piece.angle;
    words >> piece.centimetres.x >> piece.centimetres.z >> piece.centimetres.y;
    if (!words)
        throw std::runtime_error("not a piece of furniture: " + line);
    return true;
}

static void furnish(CDocument& scene, const std::string& table, const std::string& folder)
{
    std::ifstream file(table);
    if (!file)
        throw std::runtime_error(table + ": not readable");
    CFurnisher furnisher(*scene, folder);
    int nbPieces = 0;
    for (std::string line; std::getline(file, line);)
        if (CPiece piece; parse(line, piece)) {
            furnisher.place(piece);
            ++nbPieces;
        }
    furnisher.addCamera();
    std::printf("%d pieces of %d models placed\n", nbPieces,
                static_cast<int>(furnisher.getNbModels()));
}

// A load leaves the preview aside, and a save would lose it.
static void keepPreview(CDocument& scene, const std::string& path)
{
    CFileReader file(path.c_str());
    OvZel::IZelImage* preview = nullptr;
    OvZel::IZelMgr::readPreviewImage(&preview, &file);
    if (!preview)
        return;
    std::uint32_t width = 0, height = 0;
    std::uint8_t* pixels = nullptr;
    preview->getImage(&width, &height, &pixels);
    scene->getPreviewImage()->setImage(width, height, pixels);
    preview->Release();
}

static void printCounts(CDocument& scene)
{
    long long nbPoints = 0, nbPolygons = 0;
    const int nbComponents = scene->getDefinitions()->getNbObjects();
    for (int i = 0; i < nbComponents; ++i) {
        nbPoints += scene->getDefinitions()->getZelObject(i)->getPoints()->getNbObjects();
        nbPolygons += scene->getDefinitions()->getZelObject(i)->getPolygons()->getNbObjects();
    }
    std::printf("%d layers, %d instances, %d components with %lld points and %lld polygons\n",
                scene->getLayers()->getNbObjects(), scene->getObjectInstances()->getNbObjects(),
                nbComponents, nbPoints, nbPolygons);
}

static void compareWithFile(CDocument& scene, const std::string& path)
{
    CDocument loaded;
    loaded.load(path);
    printCounts(loaded);
    const std::string difference = firstDifference(describe(*scene), describe(*loaded));
    if (!difference.empty())
        throw std::runtime_error("not the same after a load: " + difference);
    std::puts("After saving and loading everything is the same.");
}

static void run(char** paths)
{
    CDocument scene;
    scene.load(paths[0]);
    keepPreview(scene, paths[0]);
    furnish(scene, paths[1], paths[2]);
    scene->setURL(paths[3]);
    scene.save(paths[3]);
    compareWithFile(scene, paths[3]);
}

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: furnished_house HOUSE PIECES FOLDER OUT\n");
        return 2;
    }
    try {
        run(argv + 1);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "furnished_house: %s\n", error.what());
        return 1;
    }
    return 0;
}
